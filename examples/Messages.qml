import QtQuick
import QtQuick.Window
import Zel.Utility.I18n

// Ten thousand messages. Each shows when it came, and shows it anew when that reads differently.
Window {
    id: window

    readonly property date opened: {
        const now = new Date();
        now.setSeconds(0, 0);
        return now;
    }

    // Is told each text that is shown, and each that has changed.
    property var printer: null

    // In minutes: 5 minutes, 3 hours, a day, and further back from row to row.
    function age(row: int): int {
        return row < 2 ? [5, 180][row] : 1440 + (row - 2) * 37;
    }

    width: 360
    height: 480
    visible: true
    title: "Messages"

    ListView {
        id: messages

        anchors.fill: parent
        model: 10000
        delegate: Item {
            id: message

            required property int index

            width: messages.width
            height: 32

            RelativeDate {
                id: received

                moment: new Date(window.opened.getTime() - window.age(message.index) * 60000)
                onTextChanged: window.printer?.print(message.index, received.text)
            }
            Text {
                anchors { left: parent.left; leftMargin: 12; verticalCenter: parent.verticalCenter }
                text: "Message " + (message.index + 1)
            }
            Text {
                anchors { right: parent.right; rightMargin: 12; verticalCenter: parent.verticalCenter }
                text: received.text
                color: "gray"
            }
        }
    }
}
