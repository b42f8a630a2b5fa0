// Writes what the context manager tells its reactors, one line each, contexts
// by their names: "contextChanged VIEWPORT [CameraLocation, ViewCenter]",
// "activeContextsChanged". A tag set by the test goes in front.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "kydi/KyDiContextChange.h"
#include "kydi/KyDiContextManager.h"
#include "kydi/KyDiContextReactor.h"

namespace kytest {

// Writes what the manager tells, contexts by their names.
class ManagerSpy : public KyDiContextReactor {
public:
    explicit ManagerSpy(KyDiContextManager* manager) : m_manager(manager) {
        manager->addReactor(this);
    }
    ~ManagerSpy() override { m_manager->removeReactor(this); }
    ManagerSpy(const ManagerSpy&) = delete;
    ManagerSpy& operator=(const ManagerSpy&) = delete;

    void contextChanged(const KyDiContextChange* change) override {
        std::string names = "[";
        for (int i = 0; i < change->propertyNames.length(); ++i) {
            names += (i > 0 ? ", " : "") + change->propertyNames[i].utf8();
        }
        lines.push_back(tag + "contextChanged " +
                        KyString(m_manager->getName(change->context)).utf8() + " " + names + "]");
    }
    void activeContextsChanged() override { lines.push_back(tag + "activeContextsChanged"); }
    std::vector<std::string> take() { return std::exchange(lines, {}); }

    std::vector<std::string> lines;
    std::string tag;

private:
    KyDiContextManager* m_manager;
};

}  // namespace kytest
