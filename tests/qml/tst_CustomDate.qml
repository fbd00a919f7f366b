// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

import QtQuick
import QtTest
import Zel.Utility.I18n

TestCase {
    id: test

    // The first test has the settings of the program's start.
    readonly property date moment: new Date("2026-05-16T22:30:00")
    readonly property string percentage: formats.percentage(0.256, 1)
    readonly property string patterns: [formats.shortDate, formats.shortTime, formats.shortDateTime].join(" | ")

    name: "CustomDate"

    // No-break spaces are replaced by ordinary ones.
    function plain(text) {
        return text.replace(/[\u00a0\u202f]/g, " ");
    }

    CustomDate {
        id: day

        property bool isValid: valid

        moment: test.moment
        skeleton: "yMMMdhm"
    }
    CustomDate {
        id: zone

        moment: test.moment
        skeleton: "hmZ"
    }
    Formats {
        id: formats
    }

    function test_followsSettings_data() {
        return [
            { tag: "as before", change: () => true, texts: "16 May 2026, 22:30; 22:30 +0200; 25.6%; dd/MM/yyyy | hh:mm | dd/MM/yyyy, hh:mm" },
            { tag: "clock", change: () => device.setClock("12"), texts: "16 May 2026, 10:30 pm; 10:30 pm +0200; 25.6%; dd/MM/yyyy | h:mm ap | dd/MM/yyyy, h:mm ap" },
            { tag: "zone", change: () => device.setTimeZone("Europe/London"), texts: "16 May 2026, 10:30 pm; 9:30 pm +0100; 25.6%; dd/MM/yyyy | h:mm ap | dd/MM/yyyy, h:mm ap" },
            { tag: "region", change: () => device.setRegion("de_DE"), texts: "16. Mai 2026, 10:30 PM; 9:30 PM +0100; 25,6 %; dd.MM.yy | h:mm AP | dd.MM.yy, h:mm AP" },
            { tag: "back", change: () => device.setClock("24") && device.setRegion("en_GB") && device.setTimeZone("Europe/Berlin"), texts: "16 May 2026, 22:30; 22:30 +0200; 25.6%; dd/MM/yyyy | hh:mm | dd/MM/yyyy, hh:mm" }
        ];
    }
    function test_followsSettings(row) {
        verify(row.change());
        const texts = () => [day.text, zone.text, percentage, patterns].map(plain).join("; ");
        for (let i = 0; i < 20 && texts() !== row.texts; ++i) {
            wait(10);
        }
        compare(texts(), row.texts);
    }

    function test_skeleton() {
        compare(day.isValid, true);
        day.skeleton = "yMMMM";
        compare(day.text, "May 2026");
        compare(day.isValid, true);
    }

    function test_unknownSkeleton() {
        ignoreWarning(/tst_CustomDate\.qml:[0-9]+.*CustomDate: skeleton: there is no pattern for "!"/);
        failOnWarning(/skeleton/);
        day.skeleton = "!";
        compare(day.isValid, false);
        for (const clock of ["12", "24"]) {
            verify(device.setClock(clock));
            tryVerify(() => zone.text.startsWith(clock === "12" ? "10:30" : "22:30"), 200);
            compare(day.text, "");
        }
    }

    function cleanup() {
        day.skeleton = "yMMMdhm";
    }

    function test_locale() {
        formats.locale = Qt.locale("fr_FR");
        compare(plain(percentage), "25,6 %");
        compare(formats.locale.name, "fr_FR");
        compare(plain(formats.percentage(0.5, 2, 2)), "50,00 %");
        formats.locale = undefined;
        compare(percentage, "25.6%");
        compare(formats.locale.name, "en_GB");
    }
}
