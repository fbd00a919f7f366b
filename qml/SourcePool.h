// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_QML_SOURCEPOOL_H
#define ZEL_QML_SOURCEPOOL_H

#include <algorithm>
#include <memory>
#include <vector>

namespace zel::utility::i18n::qml {

/** The sources in use, so that elements with the same key share one. */
template <typename Source>
class SourcePool
{
public:
    template <typename Key>
    std::shared_ptr<Source> get(const Key& key)
    {
        for (const std::weak_ptr<Source>& used : m_sources) {
            std::shared_ptr<Source> source = used.lock();
            if (source && source->key() == key) {
                return source;
            }
        }
        const auto unused = std::remove_if(m_sources.begin(), m_sources.end(),
                                           [](const std::weak_ptr<Source>& source) { return source.expired(); });
        m_sources.erase(unused, m_sources.end());
        auto created = std::make_shared<Source>(key);
        m_sources.push_back(created);
        return created;
    }

    /** Sources in use stay alive, but are not shared any more. */
    void clear() { m_sources.clear(); }

private:
    std::vector<std::weak_ptr<Source>> m_sources;
};

} // namespace zel::utility::i18n::qml

#endif
