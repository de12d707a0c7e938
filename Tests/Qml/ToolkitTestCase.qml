/*!
    A test case that tolerates no warning, and leaves what the program shares between tests as it was.
*/
import QtQuick
import QtTest
import Korvu 1.0

TestCase {
    readonly property var themes: ["light", "dark", "highContrast"]

    when: windowShown

    function init() {
        failOnWarning(/.?/);
    }

    function cleanup() {
        ThemeManager.theme = "light";
        App.textScale = 1;
        App.isKeyboardFocus = false;
    }

    //! Test data of rows that are arrays; the first of the columns must be "tag".
    function table(columns: var, rows: var): var {
        return rows.map(row => columns.reduce((data, column, i) => Object.assign(data, { [column]: row[i] }), {}));
    }

    //! An instance of the toolkit's component type, on the test case's parent unless told otherwise, until the test ends.
    function make(type: string, properties: var, parentItem: var): var {
        const component = Qt.createComponent("qrc:/qt/qml/UIToolkitQml/%1.qml".arg(type));
        verify(component.status === Component.Ready, component.errorString());
        return createTemporaryObject(component, parentItem ?? parent, properties ?? {});
    }

    //! The value at path, names or indexes with dots between them.
    function valueAt(object: var, path: string): var {
        return path.split(".").reduce((value, key) => value[key], object);
    }

    //! Compares each property of object that expected names by its path.
    function compareProperties(object: var, expected: var): void {
        for (const path in expected)
            compare(valueAt(object, path), expected[path], path);
    }
}
