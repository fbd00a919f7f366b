// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

// Times 10,000 elements of the QML module in one engine: their creation, each with its first text, and a renewal of
// all.

#include <benchmark/benchmark.h>
#include <memory>
#include <QtCore/QCoreApplication>
#include <QtCore/QDateTime>
#include <QtCore/QVariant>
#include <QtQml/QQmlComponent>
#include <QtQml/QQmlEngine>
#include <vector>

namespace {

constexpr int count = 10000;

// An engine with elements for moments of the last days, as in a list of messages.
class Elements
{
public:
    Elements()
    {
        m_engine.addImportPath(QStringLiteral(ZEL_QML_MODULES));
        m_component.setData("import Zel.Utility.I18n\nRelativeDate {}", QUrl());
        const QDateTime now = QDateTime::currentDateTime();
        for (int i = 0; i < count; ++i) {
            m_elements.emplace_back(
                m_component.createWithInitialProperties({{QStringLiteral("moment"), now.addSecs(-40 * i)}}));
        }
        call("renewWaiting");
    }

    // Updates all texts, as after a change of the system clock.
    void renew() { call("renewAll"); }

    bool isComplete() const { return !m_elements.back()->property("text").toString().isEmpty(); }

private:
    void call(const char* slot)
    {
        for (QObject* const child : m_engine.children()) {
            if (child->inherits("zel::utility::i18n::qml::Timekeeper")) {
                QMetaObject::invokeMethod(child, slot);
            }
        }
    }

    QQmlEngine m_engine;
    QQmlComponent m_component{&m_engine};
    std::vector<std::unique_ptr<QObject>> m_elements;
};

void create(benchmark::State& state)
{
    for (auto step : state) {
        if (!Elements().isComplete()) {
            state.SkipWithError("the last element has no text");
        }
    }
}

void renew(benchmark::State& state)
{
    Elements elements;
    for (auto step : state) {
        elements.renew();
    }
    if (!elements.isComplete()) {
        state.SkipWithError("the last element has no text");
    }
}

BENCHMARK(create);
BENCHMARK(renew);

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
