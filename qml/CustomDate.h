// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_QML_CUSTOMDATE_H
#define ZEL_QML_CUSTOMDATE_H

#include "DateText.h"

namespace zel::utility::i18n::qml {

/**
 * A moment formatted by an ICU skeleton, following the user's region, clock and time zone.
 *
 * @code
 * CustomDate { id: day; skeleton: "yMMMd"; moment: model.date }
 * Label { text: day.text } // "Sep 3, 2012"
 * @endcode
 */
class CustomDate : public zel::utility::i18n::qml::DateText // in full for the type registration of Qt 6.4
{
    Q_OBJECT
    QML_ELEMENT

    /** The fields to show, in any order: letters of an ICU date/time skeleton. Default: "", and the text is empty. */
    Q_PROPERTY(QString skeleton READ skeleton WRITE setSkeleton NOTIFY skeletonChanged FINAL)
    /** Whether ICU can build a pattern from the skeleton; if not, the text is empty and a warning says so, once. */
    Q_PROPERTY(bool valid READ isValid NOTIFY validChanged FINAL)

public:
    using DateText::DateText;

    QString skeleton() const { return m_skeleton; }
    void setSkeleton(const QString& skeleton);

    bool isValid();

    void classBegin() override;

Q_SIGNALS:
    void skeletonChanged();
    void validChanged();

protected:
    std::shared_ptr<TextSource> createSource() override;

private:
    QString m_skeleton;
    bool m_isReported = false; // that there is no pattern
};

} // namespace zel::utility::i18n::qml

#endif
