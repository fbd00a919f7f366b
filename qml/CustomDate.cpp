// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "CustomDate.h"

#include "Timekeeper.h"
#include <QtQml/QQmlInfo>

namespace zel::utility::i18n::qml {

void CustomDate::setSkeleton(const QString& skeleton)
{
    if (skeleton != m_skeleton) {
        m_skeleton = skeleton;
        Q_EMIT skeletonChanged();
        renewWithOtherSource();
        Q_EMIT validChanged();
    }
}

bool CustomDate::isValid()
{
    return timekeeper() != nullptr && static_cast<CustomDateSource&>(source()).isValid();
}

void CustomDate::classBegin()
{
    DateText::classBegin();
    if (timekeeper() != nullptr && !connect(timekeeper(), SIGNAL(regionChanged()), this, SIGNAL(validChanged()))) {
        qmlWarning(this) << "cannot follow the region";
    }
}

std::shared_ptr<TextSource> CustomDate::createSource()
{
    return timekeeper()->customDates(m_skeleton);
}

} // namespace zel::utility::i18n::qml
