#include "KyAppContextList.h"

#include <algorithm>
#include <memory>

#include "KyAppPropertyValue.h"
#include "base/KyString.h"
#include "kydi/KyDiContext.h"
#include "kydi/KyDiContextIterator.h"
#include "kydi/KyDiContextManager.h"
#include "kydi/KyDiManager.h"
#include "rx/KyRxMemberQueryEngine.h"
#include "rx/KyRxProperty.h"

namespace {

// The names the layer's factories answer to; a name without a factory in
// this build makes nothing.
const wchar_t* const kFactoryNames[] = {L"SUN", L"DRAWING", L"SELECTION", L"VIEWPORT", L"RENDER"};

}  // namespace

void KyAppContextList::makeAll() {
    KyDiContextManager* manager = KyDiManager::getContextManager();
    for (const wchar_t* name : kFactoryNames) {
        manager->getContext(name, true);
    }
    // A context binds to the drawing in a refresh pass: one now, so that
    // what is listed is what the drawing shows, also for a context made
    // since the last pass.
    KyDiManager::refresh();
}

std::vector<std::pair<std::string, KyDiContext*>> KyAppContextList::inNameOrder() {
    KyDiContextManager* manager = KyDiManager::getContextManager();
    std::vector<std::pair<std::string, KyDiContext*>> found;
    const std::unique_ptr<KyDiContextIterator> contexts(manager->getContexts());
    for (; contexts != nullptr && !contexts->done(); contexts->next()) {
        auto* context = const_cast<KyDiContext*>(contexts->current());
        const wchar_t* name = manager->getName(context);
        found.emplace_back(name != nullptr ? KyString(name).utf8() : std::string(), context);
    }
    std::sort(found.begin(), found.end(),
              [](const auto& a, const auto& b) { return a.first < b.first; });
    return found;
}

KyDiContext* KyAppContextList::find(const std::string& name) {
    return KyDiManager::getContextManager()->getContext(KyString::fromUtf8(name), true);
}

std::vector<KyAppContextList::Property> KyAppContextList::properties(KyDiContext* context) {
    std::vector<Property> shown;
    const std::unique_ptr<KyRxMemberIterator> members(context->newMemberIterator());
    for (; members != nullptr && !members->done(); members->next()) {
        const auto* property = kyrxCast<KyRxProperty>(members->current());
        if (property == nullptr) {
            continue;
        }
        KyRxValue value;
        const bool read = property->getValue(context, value) == Kyro::eOk;
        shown.emplace_back(KyString(property->name()).utf8(),
                           read ? KyAppPropertyValue::format(value) : std::string("none"));
    }
    return shown;
}
