// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_QML_SYSTEMCLOCK_H
#define ZEL_QML_SYSTEMCLOCK_H

#include <memory>
#include <QtCore/QObject>

QT_BEGIN_NAMESPACE
class QSocketNotifier;
QT_END_NAMESPACE

namespace zel::utility::i18n::qml {

/** Reports that the system clock was set, or that the system woke up. */
class SystemClock : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(SystemClock)

public:
    explicit SystemClock(QObject* parent);
    ~SystemClock() override;

    /** False if the system does not report this, so that the clock has to be polled. */
    bool isWatched() const { return m_notifier != nullptr; }

    Q_SIGNAL void changed();

private Q_SLOTS:
    void onReadable();

private:
    bool watch() const;

    int m_timer;
    std::unique_ptr<QSocketNotifier> m_notifier;
};

} // namespace zel::utility::i18n::qml

#endif
