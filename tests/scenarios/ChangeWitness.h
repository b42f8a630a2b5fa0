// Checks that what a client shows never goes stale: a palette reads an item's
// members (or a context's) again only when it is told that the item (or the
// context) changed. The witness keeps the text of every member of every item
// of a collection, and of a context, as it read them at the last look; at the
// next look, after the passes that bring everything in step, whatever reads
// differently must have been told since: the item added or modified, the
// collection reset; the context changed (with that property, or with no
// names at all) or the active contexts changed. Contexts are looked at only
// with a document in front, as the manager tells nothing without one.
#pragma once

#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <set>
#include <string>
#include <utility>

#include "kydi/KyDiCollectionReactor.h"
#include "kydi/KyDiContext.h"
#include "kydi/KyDiContextChange.h"
#include "kydi/KyDiContextManager.h"
#include "kydi/KyDiContextReactor.h"
#include "kydi/KyDiManager.h"
#include "kydi/KyDiObservableCollection.h"
#include "manager/host/KyDiHostAccess.h"
#include "rx/KyRxMemberQueryEngine.h"
#include "rx/KyRxProperty.h"
#include "support/CollectionContract.h"

namespace kytest {

// The text of each property of `object` that can be read, by name.
inline std::map<std::string, std::string> memberTexts(KyDiDynamicObject* object) {
    std::map<std::string, std::string> texts;
    const std::unique_ptr<KyRxMemberIterator> members(object->newMemberIterator());
    for (; members != nullptr && !members->done(); members->next()) {
        const auto* property = kyrxCast<KyRxProperty>(members->current());
        if (property == nullptr) {
            continue;
        }
        KyRxValue value;
        if (property->getValue(object, value) == Kyro::eOk) {
            texts[KyString(property->name()).utf8()] = value.text().utf8();
        }
    }
    return texts;
}

// The members that differ between two readings, as "Color: 1 -> 3".
inline std::string differences(const std::map<std::string, std::string>& before,
                               const std::map<std::string, std::string>& after) {
    std::string text;
    for (const auto& [name, value] : after) {
        const auto old = before.find(name);
        const std::string was = old != before.end() ? old->second : "(none)";
        if (was != value) {
            text += (text.empty() ? "" : ", ") + name + ": " + was + " -> " + value;
        }
    }
    for (const auto& [name, value] : before) {
        if (!after.contains(name)) {
            text += (text.empty() ? "" : ", ") + name + ": " + value + " -> (none)";
        }
    }
    return text;
}

class CollectionWitness : public KyDiCollectionReactor {
public:
    CollectionWitness(KyDiObservableCollection* collection, std::string name)
        : m_collection(collection), m_name(std::move(name)) {
        m_collection->addReactor(this);
    }
    ~CollectionWitness() override { m_collection->removeReactor(this); }
    CollectionWitness(const CollectionWitness&) = delete;
    CollectionWitness& operator=(const CollectionWitness&) = delete;

    void itemsChanged(const KyDiItemArray& added, const KyDiItemArray&) override {
        for (int i = 0; i < added.length(); ++i) {
            m_told.insert(added[i]);
        }
    }
    void itemsModified(const KyDiItemArray& modified) override {
        for (int i = 0; i < modified.length(); ++i) {
            m_told.insert(modified[i]);
        }
    }
    void collectionReset() override { m_reset = true; }

    // Reads every item again; what changed untold since the last look fails
    // the test.
    void look(const std::string& when) {
        std::map<KyDiDynamicObject*, std::map<std::string, std::string>> now;
        const KyDiItemArray& items = m_collection->getItems();
        for (int i = 0; i < items.length(); ++i) {
            now[items[i]] = memberTexts(items[i]);
        }
        if (!m_reset) {
            for (const auto& [item, texts] : now) {
                const auto before = m_seen.find(item);
                if (before != m_seen.end() && before->second != texts && !m_told.contains(item)) {
                    ADD_FAILURE() << m_name << ": " << itemName(item)
                                  << " changed without a report ("
                                  << differences(before->second, texts) << ") " << when;
                }
            }
        }
        m_seen = std::move(now);
        m_told.clear();
        m_reset = false;
    }

private:
    KyDiObservableCollection* m_collection;
    std::string m_name;
    std::map<KyDiDynamicObject*, std::map<std::string, std::string>> m_seen;
    std::set<KyDiDynamicObject*> m_told;
    bool m_reset = false;
};

class ContextWitness : public KyDiContextReactor {
public:
    ContextWitness(KyDiContext* context, std::string name)
        : m_manager(KyDiManager::getContextManager()), m_context(context), m_name(std::move(name)) {
        m_manager->addReactor(this);
    }
    ~ContextWitness() override { m_manager->removeReactor(this); }
    ContextWitness(const ContextWitness&) = delete;
    ContextWitness& operator=(const ContextWitness&) = delete;

    void contextChanged(const KyDiContextChange* change) override {
        if (change->context != m_context) {
            return;
        }
        if (change->propertyNames.isEmpty()) {
            m_everything = true;
        }
        for (int i = 0; i < change->propertyNames.length(); ++i) {
            m_told.insert(change->propertyNames[i].utf8());
        }
    }
    void activeContextsChanged() override { m_everything = true; }

    // Without a document in front the manager tells nothing: the look waits
    // for one, and what is told until then counts.
    void look(const std::string& when) {
        if (KyDiHostAccess::currentDocument() == kKyDiNoDocument) {
            return;
        }
        std::map<std::string, std::string> now = memberTexts(m_context);
        if (!m_everything && !m_seen.empty()) {
            for (const auto& [name, value] : now) {
                const auto before = m_seen.find(name);
                if (before != m_seen.end() && before->second != value && !m_told.contains(name)) {
                    ADD_FAILURE() << m_name << "." << name << " changed without a report ("
                                  << before->second << " -> " << value << ") " << when;
                }
            }
        }
        m_seen = std::move(now);
        m_told.clear();
        m_everything = false;
    }

private:
    KyDiContextManager* m_manager;
    KyDiContext* m_context;
    std::string m_name;
    std::map<std::string, std::string> m_seen;
    std::set<std::string> m_told;
    bool m_everything = false;
};

}  // namespace kytest
