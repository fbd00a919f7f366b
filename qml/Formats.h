// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_QML_FORMATS_H
#define ZEL_QML_FORMATS_H

#include <optional>
#include <QtCore/QLocale>
#include <QtCore/QObject>
#include <QtQml/QQmlParserStatus>
#include <QtQml/qqmlregistration.h>
#include <zel/utility/i18n/DateFormat.h>

namespace zel::utility::i18n::qml {

/**
 * The date and time patterns of a locale in Qt syntax, and percentages. Bindings follow the user's clock and region.
 *
 * @code
 * Formats { id: formats }
 * Label { text: Qt.formatDateTime(model.date, formats.shortDateTime) }
 * Label { text: formats.percentage(0.256, 1, 0) } // "25.6%"
 * @endcode
 */
class Formats : public QObject, public QQmlParserStatus
{
    Q_OBJECT
    Q_INTERFACES(QQmlParserStatus)
    QML_ELEMENT
    Q_DISABLE_COPY_MOVE(Formats)

    /** The locale, as from Qt.locale(). Default: the user's region locale, which is followed. */
    Q_PROPERTY(QLocale locale READ locale WRITE setLocale RESET resetLocale NOTIFY changed FINAL)

    /** Date patterns, from numbers only to full names with the weekday. */
    Q_PROPERTY(QString shortDate READ shortDate NOTIFY changed FINAL)
    Q_PROPERTY(QString mediumDate READ mediumDate NOTIFY changed FINAL)
    Q_PROPERTY(QString longDate READ longDate NOTIFY changed FINAL)
    Q_PROPERTY(QString fullDate READ fullDate NOTIFY changed FINAL)

    /** Time patterns under the user's clock. */
    Q_PROPERTY(QString shortTime READ shortTime NOTIFY changed FINAL)
    Q_PROPERTY(QString mediumTime READ mediumTime NOTIFY changed FINAL)
    Q_PROPERTY(QString longTime READ longTime NOTIFY changed FINAL)
    Q_PROPERTY(QString fullTime READ fullTime NOTIFY changed FINAL)

    /** Patterns of a date with a time of the same length, under the user's clock. */
    Q_PROPERTY(QString shortDateTime READ shortDateTime NOTIFY changed FINAL)
    Q_PROPERTY(QString mediumDateTime READ mediumDateTime NOTIFY changed FINAL)
    Q_PROPERTY(QString longDateTime READ longDateTime NOTIFY changed FINAL)
    Q_PROPERTY(QString fullDateTime READ fullDateTime NOTIFY changed FINAL)

public:
    explicit Formats(QObject* parent = nullptr) : QObject(parent) {}

    QLocale locale() const;
    void setLocale(const QLocale& locale);
    void resetLocale();

    QString shortDate() const;
    QString mediumDate() const;
    QString longDate() const;
    QString fullDate() const;
    QString shortTime() const;
    QString mediumTime() const;
    QString longTime() const;
    QString fullTime() const;
    QString shortDateTime() const;
    QString mediumDateTime() const;
    QString longDateTime() const;
    QString fullDateTime() const;

    /**
     * A number as a percentage: 1.0 is a hundred percent. A binding that calls this is evaluated again when the locale
     * changes.
     */
    Q_INVOKABLE QString percentage(double value, int maximumFractionDigits = 0, int minimumFractionDigits = 0);

    void classBegin() override;
    void componentComplete() override {}

    Q_SIGNAL void changed();

private:
    std::optional<QLocale> m_locale;
};

} // namespace zel::utility::i18n::qml

#endif
