// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "CustomDate.h"

#include "Timekeeper.h"
#include <QtQml/QQmlInfo>
#include <utility>

namespace zel::utility::i18n::qml {

void CustomDate::setSkeleton(const QString& skeleton)
{
    if (skeleton != m_skeleton) {
        m_skeleton = skeleton;
        m_isReported = false;
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
    const std::shared_ptr<CustomDateSource> source = timekeeper()->customDates(m_skeleton);
    if (!source->isValid() && !m_skeleton.isEmpty() && !std::exchange(m_isReported, true)) {
        qmlWarning(this) << "skeleton: there is no pattern for \"" << m_skeleton << '"';
    }
    return source;
}

} // namespace zel::utility::i18n::qml
