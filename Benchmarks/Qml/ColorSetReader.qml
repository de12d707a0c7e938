/*!
    Reads a colour set over and over, in compiled code as a component would.
*/
import QtQml
import Korvu 1.0

QtObject {
    id: reader

    property string name: "text-primary"
    property string themeType: "global"
    property int counter: 0

    function read(times: int): void {
        for (let i = 0; i < times; ++i)
            App.getColorSet(reader.name, reader.themeType);
    }

    //! The loop of read() around about nothing, to take off what looping costs.
    function idle(times: int): void {
        for (let i = 0; i < times; ++i)
            reader.counter = i;
    }
}
