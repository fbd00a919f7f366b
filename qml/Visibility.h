// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_QML_VISIBILITY_H
#define ZEL_QML_VISIBILITY_H

#include <QtCore/QObject>
#include <QtCore/QPointer>

namespace zel::utility::i18n::qml {

/**
 * Whether the item that an object belongs to is shown: the item and all items above it are visible, and their window
 * is neither hidden nor minimised. An object without an item counts as shown; without a window, only the items decide.
 * Items and windows are recognised by their meta-objects, so that Qt Quick is not needed.
 */
class Visibility : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(Visibility)

public:
    /** Follows the item nearest above an object, which becomes the parent. */
    explicit Visibility(QObject* object);

    bool isShown() const { return m_itemIsShown && m_windowIsShown; }

    Q_SIGNAL void changed();

private Q_SLOTS:
    void onVisibleChanged();
    void onWindowChanged();
    void onWindowVisibleChanged();

private:
    void set(bool& shown, bool value);
    void followWindow(QObject* window);

    QPointer<QObject> m_item;
    QPointer<QObject> m_window;
    bool m_itemIsShown = true;
    bool m_windowIsShown = true;
};

} // namespace zel::utility::i18n::qml

#endif
