// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_QML_DATETEXT_H
#define ZEL_QML_DATETEXT_H

#include "TextSource.h"
#include <memory>
#include <optional>
#include <QtCore/QDateTime>
#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtQml/QQmlParserStatus>
#include <QtQml/qqmlregistration.h>

namespace zel::utility::i18n::qml {

class Timekeeper;
class Visibility;

/** The common base of RelativeDate and CustomDate: a moment, and its text, which is kept up to date. */
class DateText : public QObject, public QQmlParserStatus
{
    Q_OBJECT
    Q_INTERFACES(QQmlParserStatus)
    QML_ANONYMOUS
    Q_DISABLE_COPY_MOVE(DateText)

    /** The moment to format, shown in local time. Default: none, and the text is empty. */
    Q_PROPERTY(QDateTime moment READ moment WRITE setMoment NOTIFY momentChanged FINAL)
    /** The text of the moment. It stays empty if no QML engine created the element. */
    Q_PROPERTY(QString text READ text NOTIFY textChanged FINAL)
    /**
     * Whether the text is updated when time passes. Default: while the item around this element is visible and its
     * window is neither hidden nor minimised. Set it where the program renders a window that is never shown. An
     * inactive element costs nothing; it is updated when it becomes active again.
     */
    Q_PROPERTY(bool active READ isActive WRITE setActive RESET resetActive NOTIFY activeChanged FINAL)

public:
    explicit DateText(QObject* parent = nullptr);
    ~DateText() override;

    QDateTime moment() const { return m_moment.toLocalTime(); }
    void setMoment(const QDateTime& moment);

    QString text();

    bool isActive() const { return m_isActive; }
    void setActive(bool active);
    void resetActive();

    void classBegin() override;
    void componentComplete() override;

    // For the timekeeper.
    TextSource& source();
    bool hasMoment() const { return m_moment.isValid(); }
    QDateTime sourceMoment();
    virtual QDateTime fixedAnchor() const { return {}; }
    qint64 dueTime() const { return m_isActive && !fixedAnchor().isValid() ? m_validUntil : DatedText::never; }
    /** The number of changes of the text and of its properties. A text made before the last one is out of date. */
    quint32 revision() const { return m_revision; }
    void receive(const DatedText& text);
    void forgetSource();
    void forgetReading();

Q_SIGNALS:
    void momentChanged();
    void textChanged();
    void activeChanged();

protected:
    virtual std::shared_ptr<TextSource> createSource() = 0;
    /** The moment, in local time, as the source takes it. */
    virtual QDateTime prepared(const QDateTime& moment) const { return moment; }
    virtual void onValidityChanged() {}

    /** Call when only the moment or the anchor has changed. */
    void renew();
    /** Call when another source is to make the text. */
    void renewWithOtherSource();

    /** Null if no engine created the element. */
    Timekeeper* timekeeper() const;

private Q_SLOTS:
    void onVisibilityChanged();

private:
    void applyActive(bool active);

    QDateTime m_moment; // in UTC: the same instant in whatever time zone the system will be
    QDateTime m_sourceMoment;
    QString m_text;
    qint64 m_validUntil = DatedText::never;
    quint32 m_revision = 0;
    bool m_isComplete = false;
    bool m_isStale = true;     // textChanged() was emitted, and text() was not read since
    bool m_isOutdated = false; // settings changed while the element was inactive; textChanged() is still to come
    bool m_isActive = true;
    std::optional<bool> m_requestedActive;
    Visibility* m_visibility = nullptr;
    std::shared_ptr<TextSource> m_source;
    QPointer<Timekeeper> m_timekeeper;
};

} // namespace zel::utility::i18n::qml

#endif
