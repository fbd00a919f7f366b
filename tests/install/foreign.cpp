// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include <QtCore/QTextStream>
#include <zel/utility/i18n/RelativeDateFormatter.h>
using namespace zel::utility::i18n;

int main()
{
    const QDateTime anchor(QDate(2012, 5, 16), QTime(10, 30));
    RelativeDateFormatter formatter(RelativeDateFormat::TimeCritical);
    formatter.setAnchorTime(anchor);
    QTextStream(stdout) << formatter.format(anchor.addSecs(-300)) << '\n';
}
