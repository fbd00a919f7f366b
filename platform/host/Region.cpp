// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "Region.h"

#include "LocaleChangeFilter.h"
#include <memory>
#include <mutex>
#include <QtCore/QByteArray>
#include <zel/system/LocaleName.h>

namespace zel::host {

namespace {

// The last locale and its name.
struct Cache
{
    std::mutex mutex;
    QByteArray name;
    QLocale locale = QLocale::c();
};

} // namespace

Region::Region(Reporter reporter)
{
    LocaleChangeFilter::call(this, SIGNAL(changed()), this, reporter);
}

QLocale Region::now()
{
    // Never destroyed: texts may be formatted while the process destroys its static objects.
    static Cache* const cache = std::make_unique<Cache>().release();
    const char* const variable = system::LocaleName::variable();
    const QByteArray name = variable == nullptr ? QByteArray() : qgetenv(variable);
    const std::lock_guard lock(cache->mutex);
    if (cache->name != name) {
        cache->name = name;
        cache->locale = system::LocaleName::closest(QString::fromLocal8Bit(name));
    }
    return cache->locale;
}

QString Region::source() const
{
    const char* const variable = system::LocaleName::variable();
    return variable == nullptr ? QStringLiteral("the default, as neither LC_ALL, LC_TIME nor LANG is set")
                               : QLatin1String(variable) +
                                     QStringLiteral("; running programs see no change of the session's environment");
}

} // namespace zel::host
