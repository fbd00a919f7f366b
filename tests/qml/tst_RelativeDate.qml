// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

import QtQuick
import QtQuick.Window
import QtTest
import Zel.Utility.I18n

Item {
    id: root

    width: 100
    height: 100

    Component {
        id: component

        RelativeDate {
        }
    }

    Item {
        id: page

        RelativeDate {
            id: shown
        }
    }

    RelativeDate {
        id: other

        readonly property string region: locale.name // as a binding reads it, before the element is complete
    }

    Timer {
        id: destroyer

        property var element

        interval: 1
        onTriggered: {
            element.destroy();
            element.moment = new Date();
        }
    }

    Component {
        id: hiddenWindow

        Window {
        }
    }

    SignalSpy {
        id: localeChanges

        target: shown
        signalName: "localeChanged"
    }

    SignalSpy {
        id: changes

        target: shown
        signalName: "textChanged"
    }

    TestCase {
        id: test

        name: "RelativeDate"
        when: windowShown

        // No-break spaces are replaced by ordinary ones.
        function plain(text) {
            return text.replace(/\u202f/g, " ");
        }

        // In local time.
        function time(text) {
            return new Date(text);
        }

        function init() {
            device.setSystemTimeZone("Europe/Berlin");
            page.visible = true;
            shown.active = undefined;
            shown.moment = new Date(NaN);
        }

        function test_text_data() {
            const anchor = time("2026-05-16T22:30:00");
            return [
                { tag: "minutes", properties: { anchor }, moment: "2026-05-16T22:25:00", text: "5 minutes ago" },
                { tag: "now", properties: { anchor }, moment: "2026-05-16T22:29:59", text: "now" },
                { tag: "exact", properties: { anchor, wording: RelativeDate.Exact }, moment: "2026-05-16T22:30:00", text: "in 0 minutes" },
                { tag: "day", properties: { anchor }, moment: "2026-05-15T22:30:00", text: "yesterday 22:30" },
                { tag: "12 hours", properties: { anchor, clockFormat: RelativeDate.Use12hourClock }, moment: "2026-05-15T22:30:00", text: "yesterday 10:30 pm" },
                { tag: "days", properties: { anchor, table: RelativeDate.NonTimeCritical }, moment: "2026-05-15T22:30:00", text: "yesterday" },
                { tag: "locale", properties: { anchor, locale: Qt.locale("de_DE") }, moment: "2026-05-16T22:25:00", text: "vor 5 Minuten" },
                { tag: "no moment", properties: { anchor }, moment: "", text: "" }
            ];
        }
        function test_text(row) {
            const date = createTemporaryObject(component, root, row.properties);
            date.moment = time(row.moment);
            compare(plain(date.text), row.text);
            compare(date.validUntil.getTime() > date.anchor.getTime(), row.text !== "");
        }

        function test_anchorsOneOffsetApart() {
            const moment = time("2026-05-16T12:25:00");
            const early = createTemporaryObject(component, root, { anchor: time("2026-05-16T10:30:00"), moment });
            const late = createTemporaryObject(component, root, { anchor: time("2026-05-16T12:30:00") });
            compare(early.text, "in 1 hour");
            late.moment = moment;
            compare(late.validUntil, time("2026-05-16T12:31:00"));
        }

        function test_defaults() {
            compare(shown.table, RelativeDate.TimeCritical);
            compare(shown.clockFormat, RelativeDate.ApplyUserFormat);
            compare(shown.wording, RelativeDate.Natural);
            compare(other.region, "en_GB");
            compare(shown.active, true);
            compare(shown.text, "");
        }

        function test_destroyedWhileWaiting() {
            for (let i = 0; i < 5; ++i) {
                destroyer.element = component.createObject(root);
                destroyer.start();
                tryVerify(() => !destroyer.running);
            }
            wait(10);
        }

        // A handler changes the other element, which is due at the same time.
        function test_changedByHandler_data() {
            return [{ tag: "first", changed: other, by: shown }, { tag: "second", changed: shown, by: other }];
        }
        function test_changedByHandler(row) {
            device.setTime("2026-05-16T22:30:00", true);
            shown.moment = other.moment = time("2026-05-16T22:26:00");
            compare([shown.text, other.text].join(), "4 minutes ago,4 minutes ago");
            const change = () => {
                row.changed.moment = time("2026-05-16T20:30:00");
                compare(row.changed.text, "2 hours ago");
            };
            row.by.textChanged.connect(change);
            device.setTime("2026-05-16T22:31:00", true);
            tryCompare(row.by, "text", "5 minutes ago");
            row.by.textChanged.disconnect(change);
            compare(row.changed.text, "2 hours ago");
        }

        function test_unknownValue() {
            ignoreWarning(/tst_RelativeDate\.qml:[0-9]+.*RelativeDate: table: there is no Table 7/);
            shown.table = 7;
            compare(shown.table, RelativeDate.TimeCritical);
        }

        // The time passes by itself.
        function test_turns_data() {
            return [
                { tag: "minute", now: "2026-05-16T22:30:59.800", moment: "2026-05-16T22:26:00", before: "4 minutes ago", after: "5 minutes ago" },
                { tag: "midnight", now: "2026-05-16T23:59:59.800", moment: "2026-05-16T20:00:00", before: "3 hours ago", after: "yesterday 20:00" },
                { tag: "summer time", now: "2026-03-29T01:59:59.800", moment: "2026-03-29T01:30:00", before: "29 minutes ago", after: "1 hour ago" }
            ];
        }
        function test_turns(row) {
            device.setTime(row.now, true);
            shown.moment = time(row.moment);
            compare(shown.text, row.before);
            changes.clear();
            tryCompare(shown, "text", row.after, 1000);
            compare(changes.count, 1);
        }

        // As after a night in which the machine slept.
        function test_clockIsSet_data() {
            return [
                { tag: "in place", zone: "Europe/Berlin", text: "yesterday 22:26" },
                { tag: "on a journey", zone: "America/New_York", text: "yesterday 16:26" }
            ];
        }
        function test_clockIsSet(row) {
            device.setTime("2026-05-16T22:30:00", true);
            shown.moment = time("2026-05-16T22:26:00");
            compare(shown.text, "4 minutes ago");
            device.setSystemTimeZone(row.zone);
            device.setTime("2026-05-17T08:00:00", true);
            tryCompare(shown, "text", row.text, 200);
        }

        // Where the system reports no change of the clock.
        function test_clockIsSetBack() {
            device.setTime("2026-05-16T22:30:59.700", true);
            shown.moment = time("2026-05-16T22:26:00");
            wait(50);
            compare(shown.text, "4 minutes ago");
            device.setTime("2026-05-16T22:28:00", false);
            tryCompare(shown, "text", "2 minutes ago", 1000);
        }

        function test_settings() {
            device.setTime("2026-05-16T22:30:00", true);
            shown.moment = time("2026-05-15T20:00:00");
            compare(shown.text, "yesterday 20:00");
            other.moment = shown.moment;
            shown.active = false;
            changes.clear();
            localeChanges.clear();
            verify(device.setClock("12"));
            tryVerify(() => plain(other.text) === "yesterday 8:00 pm", 200);
            compare(changes.count, 0);
            shown.active = undefined;
            tryVerify(() => plain(shown.text) === "yesterday 8:00 pm", 200);
            compare(localeChanges.count, 0);
            verify(device.setRegion("de_DE"));
            tryVerify(() => plain(shown.text) === "gestern 8:00 PM", 200);
            compare(shown.locale.name, "de_DE");
            compare(localeChanges.count, 1);
            verify(device.setClock("24") && device.setRegion("en_GB"));
            tryCompare(shown, "text", "yesterday 20:00", 200);
        }

        function test_otherWindow() {
            const window = createTemporaryObject(hiddenWindow, root);
            page.parent = window.contentItem;
            compare(shown.active, false);
            window.show();
            tryCompare(shown, "active", true);
            window.hide();
            tryCompare(shown, "active", false);
            window.destroy();
            tryVerify(() => page.parent === null);
            page.parent = root; // between the two, Qt versions disagree on whether the page is visible
            tryCompare(shown, "active", true);
        }

        function test_invisible_data() {
            return [
                { tag: "page", hide: () => page.visible = false, show: () => page.visible = true },
                { tag: "window", hide: () => root.Window.window.hide(), show: () => root.Window.window.show() },
                { tag: "chosen", hide: () => shown.active = false, show: () => shown.active = true }
            ];
        }
        function test_invisible(row) {
            device.setTime("2026-05-16T22:30:00", true);
            shown.moment = time("2026-05-16T22:26:00");
            compare(shown.text, "4 minutes ago");
            row.hide();
            compare(shown.active, false);
            changes.clear();
            device.setTime("2026-05-16T22:40:00", true);
            wait(50);
            compare(changes.count, 0);
            row.show();
            tryCompare(shown, "active", true);
            tryCompare(shown, "text", "14 minutes ago", 200);
        }
    }
}
