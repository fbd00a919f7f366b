// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_BENCHMARKS_QMLELEMENTS_H
#define ZEL_BENCHMARKS_QMLELEMENTS_H

#include <memory>
#include <QtQml/QQmlComponent>
#include <QtQml/QQmlEngine>
#include <vector>

/** An engine with 10,000 elements of the QML module, as in a list of messages. */
class QmlElements
{
public:
    /** Their moments are scattered over the last seconds. */
    explicit QmlElements(qint64 seconds);

    /** Renews all texts, as after a change of the system clock. */
    void renew();

    bool areComplete() const { return !m_elements.back()->property("text").toString().isEmpty(); }

    QQmlEngine* engine() { return &m_engine; }

private:
    void call(const char* slot);

    QQmlEngine m_engine;
    QQmlComponent m_component{&m_engine};
    std::vector<std::unique_ptr<QObject>> m_elements;
};

#endif
