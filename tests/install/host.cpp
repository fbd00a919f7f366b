// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

// Unloads a plug-in that used the library, and asks Qt for a type that the plug-in registered.
#include <QtCore/QLibrary>
#include <QtCore/QMetaObject>
#include <QtCore/QTextStream>

int main(int /*argc*/, char** argv)
{
    QLibrary plugin(QString::fromLocal8Bit(argv[1]));
    auto* const meta = reinterpret_cast<const QMetaObject* (*)()>(plugin.resolve("metaObject"));
    if (meta == nullptr) {
        return 1;
    }
    const QMetaObject* const left = meta();
    plugin.unload();
    QTextStream(stdout) << left->className() << '\n';
}
