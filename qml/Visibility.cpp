// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "Visibility.h"

#include <QtCore/QVariant>

namespace zel::utility::i18n::qml {

namespace {

constexpr int minimized = 3; // QWindow::Minimized

bool isItem(const QObject* object)
{
    return object->inherits("QQuickItem");
}

bool isWindow(const QObject* object)
{
    return object->inherits("QQuickWindow");
}

bool isVisible(const QObject& object)
{
    return object.property("visible").toBool();
}

// The window of an item: the owner of the topmost item. Null while the item is in no window.
QObject* windowOf(QObject* item)
{
    while (auto* const above = item->property("parent").value<QObject*>()) {
        item = above;
    }
    return item->parent() != nullptr && isWindow(item->parent()) ? item->parent() : nullptr;
}

} // namespace

Visibility::Visibility(QObject* object) : QObject(object)
{
    QObject* owner = object->parent();
    while (owner != nullptr && !isItem(owner) && !isWindow(owner)) {
        owner = owner->parent();
    }
    if (owner == nullptr) {
        return;
    }
    if (isWindow(owner)) {
        followWindow(owner);
    } else if (connect(owner, SIGNAL(visibleChanged()), this, SLOT(onVisibleChanged())) &&
               connect(owner, SIGNAL(windowChanged(QQuickWindow*)), this, SLOT(onWindowChanged()))) {
        m_item = owner;
        m_itemIsShown = isVisible(*owner);
        followWindow(windowOf(owner));
    }
}

void Visibility::onVisibleChanged()
{
    set(m_itemIsShown, isVisible(*m_item));
}

void Visibility::onWindowChanged()
{
    followWindow(windowOf(m_item));
}

void Visibility::onWindowVisibleChanged()
{
    set(m_windowIsShown, !m_window || (isVisible(*m_window) && m_window->property("visibility").toInt() != minimized));
}

void Visibility::set(bool& shown, bool value)
{
    const bool before = isShown();
    shown = value;
    if (isShown() != before) {
        Q_EMIT changed();
    }
}

void Visibility::followWindow(QObject* window)
{
    if (m_window) {
        m_window->disconnect(this);
    }
    m_window = window;
    if (window != nullptr) {
        for (const char* const signal :
             {SIGNAL(visibleChanged(bool)), SIGNAL(visibilityChanged(QWindow::Visibility))}) {
            if (!connect(window, signal, this, SLOT(onWindowVisibleChanged()))) {
                break;
            }
        }
    }
    onWindowVisibleChanged();
}

} // namespace zel::utility::i18n::qml
