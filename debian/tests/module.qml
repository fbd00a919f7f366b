// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

import QtQuick
import Zel.Utility.I18n

Text {
    text: sent.text
    onTextChanged: {
        console.info(sent.text);
        Qt.callLater(Qt.exit, sent.text === "vor 5 Minuten" ? 0 : 1);
    }

    RelativeDate {
        id: sent
        locale: Qt.locale("de_DE")
        anchor: new Date(2012, 4, 16, 10, 30)
        moment: new Date(2012, 4, 16, 10, 25)
    }
}
