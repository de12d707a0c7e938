/*!
    A test case that tolerates no warning, and leaves what the program shares between tests as it was.

    It is the stage as well: what it makes is shown in it.
*/
import QtQuick
import QtTest
import Korvu 1.0

TestCase {
    id: testCase

    readonly property var themes: ["light", "dark", "highContrast"]

    width: 400
    height: 300
    visible: true
    when: windowShown

    SignalSpy { id: announced; target: UIToolKitUtils; signalName: "announced" }
    Component { id: spyComponent; SignalSpy {} }

    function init() {
        failOnWarning(/.?/);
        announced.clear();
    }

    function cleanup() {
        wait(0); // what is to be said later is said
        ThemeManager.theme = "light";
        App.textScale = 1;
        App.isKeyboardFocus = false;
    }

    //! Test data of rows that are arrays; the first of the columns must be "tag".
    function table(columns: var, rows: var): var {
        return rows.map(row => columns.reduce((data, column, i) => Object.assign(data, { [column]: row[i] }), {}));
    }

    //! An instance of the toolkit's component type, on the test case unless told otherwise, until the test ends.
    function make(type: string, properties: var, parentItem: var): var {
        const component = Qt.createComponent("qrc:/qt/qml/UIToolkitQml/%1.qml".arg(type));
        verify(component.status === Component.Ready, component.errorString());
        return createTemporaryObject(component, parentItem ?? testCase, properties ?? {});
    }

    //! A spy on a signal of object, until the test ends.
    function spyOn(object: var, signalName: string): var {
        return createTemporaryObject(spyComponent, testCase, { target: object, signalName: signalName });
    }

    //! The names of those signals that object emitted while act ran, in order, with commas between them.
    function emitted(object: var, signalNames: var, act: var): string {
        const seen = [];
        const listeners = signalNames.map(name => [object[name], () => seen.push(name)]);
        listeners.forEach(([source, listener]) => source.connect(listener));
        act();
        listeners.forEach(([source, listener]) => source.disconnect(listener));
        return seen.join();
    }

    //! What was announced since the test began, or since this was last asked.
    function heard(): var {
        wait(0); // what is to be said later is said
        const texts = announced.signalArguments.map(args => args[0]);
        announced.clear();
        return texts;
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
