// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_HOST_SETTING_H
#define ZEL_HOST_SETTING_H

#include <memory>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QVariant>

namespace zel::host {

/** Receives a message about the host: one line, without a trailing space. Called on any thread. */
using Reporter = void (*)(QtMsgType type, const QString& text);

/** A setting of the Linux host. All functions are thread-safe. */
class Setting : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(Setting)

public:
    Setting() = default;
    ~Setting() override = default;

    /**
     * Returns the value: of the clock as int, of the time zone and the region as QString. From an environment variable,
     * its text as QString; invalid if that is empty.
     */
    virtual QVariant value() const = 0;

    /** Returns the source of the value as readable text. */
    virtual QString source() const = 0;

    /**
     * Delivers changes through the event loop of the calling thread while the returned object exists; destroy it on
     * that thread. Returns null if they arrive there already.
     */
    virtual std::unique_ptr<QObject> listen() = 0;

Q_SIGNALS:
    /** The value may have changed. Emitted on the thread that received the change. */
    void changed();
};

} // namespace zel::host

#endif
