// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

import QtQml
import Zel.Utility.I18n

RelativeDate {
    locale: Qt.locale("de_DE")
    anchor: new Date(2012, 4, 16, 10, 30)
    moment: new Date(2012, 4, 16, 10, 25)
    onTextChanged: {
        console.info(text);
        Qt.exit(text === "vor 5 Minuten" ? 0 : 1);
    }
}
