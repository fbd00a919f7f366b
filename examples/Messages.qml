// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

import QtQuick
import QtQuick.Window
import Zel.Utility.I18n

// Ten thousand messages. Each shows when it was received, and its text stays up to date.
Window {
    id: window

    // 5 minutes, 3 hours and a day before the current minute, and further back from row to row.
    function receivedMoments(): var {
        const now = new Date().setSeconds(0, 0);
        const minutes = row => row < 2 ? [5, 180][row] : 1440 + (row - 2) * 37;
        return Array.from({ length: 10000 }, (_, row) => new Date(now - minutes(row) * 60000));
    }

    width: 360
    height: 480
    visible: true
    title: "Messages"

    ListView {
        anchors.fill: parent
        model: window.receivedMoments()
        delegate: Item {
            id: message

            required property int index
            required property date modelData
            readonly property bool isPrinted: index < 3 && [...Qt.application.arguments].includes("--print")

            width: ListView.view.width
            height: 32

            RelativeDate {
                id: received

                moment: message.modelData
                onTextChanged: if (message.isPrinted) console.log(message.index + 1 + ":", text)
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
