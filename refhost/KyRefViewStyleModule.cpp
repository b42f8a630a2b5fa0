#include "KyRefViewStyleModule.h"

#include "db/KyDbDatabase.h"
#include "db/KyDbEntity.h"
#include "db/KyDbObjectPointer.h"
#include "db/KyDbUndoController.h"
#include "db/KyDbViewCallout.h"
#include "db/KyDbViewStyleModule.h"
#include "rx/KyRxClass.h"
#include "rx/KyRxDynamicLinker.h"

namespace {

// True from the module's start to its stop.
bool g_running = false;

bool start() {
    if (kyrxRegisterService(KyDbViewStyleModule::kServiceName) == nullptr) {
        return false;
    }
    g_running = true;
    return true;
}

void stop() {
    g_running = false;
    kyrxUnregisterService(KyDbViewStyleModule::kServiceName);
}

// One undo group around a change: the whole change is one step of undo,
// however many callouts it reaches.
class UndoGroup {
public:
    explicit UndoGroup(KyDbDatabase* database) : m_undo(database->undoController()) {
        m_undo->beginUndoGroup(KyDbUndoController::kBeginGroupCode,
                               KyRefViewStyleModule::undoLabel());
    }
    ~UndoGroup() { m_undo->endUndoGroup(KyDbUndoController::kEndGroupCode); }
    UndoGroup(const UndoGroup&) = delete;
    UndoGroup& operator=(const UndoGroup&) = delete;

private:
    KyDbUndoController* m_undo;
};

}  // namespace

// The two functions the module exports, under these names and with these
// types (KyDbViewStyleModule.h).
bool KyModelDocGetViewStyleForEntity(KyDbEntity* entity, KyDbObjectId& id, int& kind) {
    const auto* callout = g_running ? kyrxCast<KyDbViewCallout>(entity) : nullptr;
    if (callout == nullptr || !callout->isReadEnabled()) {
        return false;
    }
    id = callout->viewStyle();
    kind = callout->kind();
    return true;
}

bool KyModelDocSetViewStyleForEntities(const KyArray<KyDbObjectId>& ids,
                                       const KyDbObjectId* styleId, int kind) {
    if (!g_running || styleId == nullptr || !KyDbViewCallout::isStyleOfKind(*styleId, kind) ||
        styleId->isErased()) {
        return false;
    }
    // A style is given to callouts of its own drawing only.
    KyDbDatabase* database = styleId->database();
    const UndoGroup group(database);
    bool changed = false;
    for (const KyDbObjectId& id : ids) {
        // Only callouts are opened: the other objects are no business of this.
        if (!id.isValid() || id.database() != database ||
            !KyRxClass::isDerivedFrom(id.objectClass(), KyDbViewCallout::desc())) {
            continue;
        }
        KyDbObjectPointer<KyDbViewCallout> callout(id, KyDb::kForWrite);
        if (callout && callout->kind() == kind && callout->viewStyle() != *styleId &&
            callout->setViewStyle(*styleId) == Kyro::eOk) {
            changed = true;
        }
    }
    return changed;
}

void KyRefViewStyleModule::registerModule() {
    static const KyRxModuleSymbol kSymbols[] = {
        {KyDbViewStyleModule::kGetViewStyleForEntity,
         reinterpret_cast<void*>(
             static_cast<KyModelDocGetViewStyleForEntityFn>(&KyModelDocGetViewStyleForEntity))},
        {KyDbViewStyleModule::kSetViewStyleForEntities,
         reinterpret_cast<void*>(
             static_cast<KyModelDocSetViewStyleForEntitiesFn>(&KyModelDocSetViewStyleForEntities))},
        {nullptr, nullptr},
    };
    kyrxRegisterModule({KyDbViewStyleModule::kModuleName, &start, &stop, kSymbols});
}

const wchar_t* KyRefViewStyleModule::undoLabel() {
    return L"View style";
}
