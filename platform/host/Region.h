// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_HOST_REGION_H
#define ZEL_HOST_REGION_H

#include <QtCore/QLocale>
#include <zel/host/Setting.h>

namespace zel::host {

/** The region locale: the environment's locale for dates and times. */
class Region : public Setting
{
    Q_OBJECT

public:
    explicit Region(Reporter reporter);

    /** The region in the environment now. A name is parsed again only if it changed. */
    static QLocale now();

    QVariant value() const override { return now().name(); }
    QString source() const override;
    std::unique_ptr<QObject> listen() override { return nullptr; }
};

} // namespace zel::host

#endif
