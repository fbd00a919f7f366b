// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_HOST_LOCALECHANGEFILTER_H
#define ZEL_HOST_LOCALECHANGEFILTER_H

#include <zel/host/Setting.h>

namespace zel::host {

/** Receives the locale changes of the application. Lives on the application's thread. */
class LocaleChangeFilter : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(LocaleChangeFilter)

public:
    /**
     * Calls a signal or slot at every locale change while the owner exists. Does nothing if there is no application
     * object, even if one is created later. Call on any thread.
     */
    static void call(QObject* receiver, const char* member, QObject* owner, Reporter reporter,
                     Qt::ConnectionType type = Qt::AutoConnection);

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void changed();

private Q_SLOTS:
    void start();
    void stop();

private:
    LocaleChangeFilter() = default;
};

} // namespace zel::host

#endif
