import QtQuick 2.15

// Moments as they are told from now. A tap tells them in days only, and back again.
Column {
    id: messages

    required property QtObject formatter
    property date now: new Date()
    property var received: [5, 180, 1440].map(minutes => new Date(now.getTime() - minutes * 60000))
    property int changes: 0
    readonly property string text: received.map(moment => textOf(moment, changes)).join(" | ")

    // An invokable method. What it answers has changed when the formatter says so.
    function textOf(moment, changes) {
        return formatter.format(moment);
    }

    // A property, and a slot: another type begins with the current time.
    function changeType() {
        formatter.type = formatter.type === 1 ? 2 : 1;
        formatter.setAnchorTime(now);
    }

    onNowChanged: formatter.setAnchorTime(now)

    Connections {
        target: messages.formatter
        function onChanged() {
            ++messages.changes;
        }
    }
    Timer {
        interval: 60000
        running: true
        repeat: true
        onTriggered: messages.formatter.applyCurrentTimeAsAnchor()
    }
    TapHandler {
        onTapped: messages.changeType()
    }
    Repeater {
        model: messages.received
        Text {
            required property date modelData
            text: messages.textOf(modelData, messages.changes)
        }
    }
}
