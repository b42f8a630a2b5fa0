// Checks what the contexts and the context manager tell, as it is told:
// - a context reports itself as the source, and only while a document is in
//   front (one being destroyed counts as none);
// - the "VIEWPORT" context's change data is its mask, 1 to 3, or nothing at
//   all (neither data nor a name) when it moved to another document;
// - the manager tells only while a document is in front, and each
//   contextChanged names a context it holds, once in the pass, with its
//   property names once each; for "VIEWPORT" the change data is the mask.
// A failure is added to the running test, with the step the storm is at.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <set>
#include <string>
#include <vector>

#include "kydi/KyDiContext.h"
#include "kydi/KyDiContextChange.h"
#include "kydi/KyDiContextIterator.h"
#include "kydi/KyDiContextManager.h"
#include "kydi/KyDiContextReactor.h"
#include "kydi/KyDiDynamicObjectReactor.h"
#include "kydi/KyDiManager.h"
#include "kydi/KyDiManagerReactor.h"
#include "manager/host/KyDiHostAccess.h"

namespace kytest {

inline bool isViewportMask(const void* data) {
    if (data == nullptr) {
        return false;
    }
    const unsigned mask = *static_cast<const unsigned*>(data);
    return mask >= 1 && mask <= 3;
}

// What one context reports.
class ContextWatch : public KyDiDynamicObjectReactor {
public:
    ContextWatch(KyDiContext* context, std::string name, const std::string& where)
        : m_context(context), m_name(std::move(name)), m_where(where) {
        m_context->addReactor(this);
    }
    ~ContextWatch() override { m_context->removeReactor(this); }
    ContextWatch(const ContextWatch&) = delete;
    ContextWatch& operator=(const ContextWatch&) = delete;

    void changed(KyDiDynamicObject* source, const wchar_t* member, void* data) override {
        ++m_reports;
        EXPECT_EQ(source, m_context) << m_name << " reported another source, " << m_where;
        // The selection goes with the last drawing, and the selection context
        // tells it then.
        EXPECT_TRUE(KyDiHostAccess::currentDocument() != kKyDiNoDocument || m_name == "SELECTION")
            << m_name << " reported without a document, " << m_where;
        if (m_name == "VIEWPORT") {
            EXPECT_TRUE(isViewportMask(data) || (data == nullptr && member == nullptr))
                << "VIEWPORT reported " << (member != nullptr ? KyString(member).utf8() : "-")
                << " without its mask, " << m_where;
        }
    }
    int reports() const { return m_reports; }

private:
    KyDiContext* m_context;
    std::string m_name;
    const std::string& m_where;
    int m_reports = 0;
};

// What the context manager tells, and a watch on every context it holds.
class ContextCheck : public KyDiContextReactor, public KyDiManagerReactor {
public:
    // `where` says where the storm is; it is read at each failure.
    explicit ContextCheck(const std::string& where)
        : m_manager(KyDiManager::getContextManager()), m_where(where) {
        m_manager->addReactor(this);
        KyDiManager::addReactor(static_cast<KyDiManagerReactor*>(this));
    }
    ~ContextCheck() override {
        m_manager->removeReactor(this);
        KyDiManager::removeReactor(static_cast<KyDiManagerReactor*>(this));
    }
    ContextCheck(const ContextCheck&) = delete;
    ContextCheck& operator=(const ContextCheck&) = delete;

    // Watches every context the manager holds now; answers how many.
    int watchAll() {
        const std::unique_ptr<KyDiContextIterator> contexts(m_manager->getContexts());
        for (; contexts != nullptr && !contexts->done(); contexts->next()) {
            auto* context = const_cast<KyDiContext*>(contexts->current());
            const wchar_t* name = m_manager->getName(context);
            m_watches.push_back(std::make_unique<ContextWatch>(
                context, name != nullptr ? KyString(name).utf8() : "", m_where));
        }
        return static_cast<int>(m_watches.size());
    }

    void refreshStarting() override { m_toldInPass.clear(); }

    void contextChanged(const KyDiContextChange* change) override {
        ++m_changes;
        expectDocument("contextChanged");
        const wchar_t* name = m_manager->getName(change->context);
        ASSERT_NE(name, nullptr) << "contextChanged names no context of the manager, " << m_where;
        const std::string text = KyString(name).utf8();
        EXPECT_TRUE(m_toldInPass.insert(text).second)
            << text << " told twice in one pass, " << m_where;
        std::set<std::string> properties;
        for (int i = 0; i < change->propertyNames.length(); ++i) {
            EXPECT_TRUE(properties.insert(change->propertyNames[i].utf8()).second)
                << text << " told " << change->propertyNames[i].utf8() << " twice, " << m_where;
        }
        if (text == "VIEWPORT") {
            EXPECT_TRUE(isViewportMask(change->changeData))
                << "VIEWPORT told without its mask, " << m_where;
        }
    }
    void activeContextsChanged() override {
        ++m_activeChanges;
        expectDocument("activeContextsChanged");
    }

    int changes() const { return m_changes; }
    int activeChanges() const { return m_activeChanges; }
    int contextReports() const {
        int reports = 0;
        for (const auto& watch : m_watches) {
            reports += watch->reports();
        }
        return reports;
    }

private:
    void expectDocument(const char* what) const {
        EXPECT_NE(KyDiHostAccess::currentDocument(), kKyDiNoDocument)
            << what << " told without a document, " << m_where;
    }

    KyDiContextManager* m_manager;
    const std::string& m_where;
    std::vector<std::unique_ptr<ContextWatch>> m_watches;
    std::set<std::string> m_toldInPass;
    int m_changes = 0;
    int m_activeChanges = 0;
};

}  // namespace kytest
