#include "contexts/KyDiViewportContext.h"

#include <algorithm>

#include "collections/KyDiImpDbObjectCollection.h"
#include "contexts/KyDiViewportContextProperties.h"
#include "kydi/KyDiHost.h"
#include "kydi/KyDiManager.h"
#include "kydi/KyDiPlotService.h"
#include "kydi/KyDiViewportService.h"
#include "manager/KyDiReflectedClasses.h"
#include "manager/host/KyDiHostAccess.h"
#include "rx/KyRxMemberQueryEngine.h"

KYDI_DEFINE_CLASS_MEMBERS(KyDiViewportContext, kViewportContext)

namespace {

// The unit variables: a change of either reads the two points anew.
const wchar_t* const kPointProperties[] = {L"CameraLocation", L"ViewCenter", nullptr};

struct SysVarRow {
    const wchar_t* name;
    const wchar_t* const* properties;
};

const SysVarRow kSysVarRows[] = {
    {L"LUPREC", kPointProperties},
    {L"LUNITS", kPointProperties},
    {nullptr, nullptr},
};

bool viewIsBusy() {
    KyDiHost* host = KyDiHostAccess::host();
    KyDiPlotService* plot = host != nullptr ? host->plotService() : nullptr;
    return plot != nullptr && plot->isViewBusy();
}

}  // namespace

KyDiViewportContext::KyDiViewportContext(const wchar_t* name)
    : KyDiContextBase(name),
      m_objectReactor(new KyDiObjectModifiedReactor<KyDiViewportContext>(this)) {}

KyDiContext* KyDiViewportContext::create(const wchar_t* name) {
    auto* context = new KyDiViewportContext(name);
    for (const SysVarRow* row = kSysVarRows; row->name != nullptr; ++row) {
        KyDiSysVar* sysVar = KyDiManager::getSysVar(row->name);
        if (sysVar == nullptr) {
            continue;
        }
        auto* reactor = new SysVarReactor(context, sysVar);
        sysVar->addReactor(reactor);
        context->m_sysVarReactors.append(reactor);
        context->m_sysVarRows[row->name] = row->properties;
    }
    return context;
}

KyDiViewportContext::~KyDiViewportContext() {
    unbind(nullptr);
    for (SysVarReactor* reactor : m_sysVarReactors) {
        reactor->sysVar()->removeReactor(reactor);
        delete reactor;
    }
    delete m_objectReactor;
}

KyRxMemberIterator* KyDiViewportContext::subNewMemberIterator() {
    // Its properties carry no placement: every one of them is listed.
    return KyRxMemberQueryEngine::theEngine()->newMemberIterator(this);
}

bool KyDiViewportContext::subIsActive() const {
    return m_document != kKyDiNoDocument && m_document != kKyDiUnboundDocument;
}

short KyDiViewportContext::subPriority() const {
    return 3;
}

void KyDiViewportContext::subInvalidate() {
    m_changeMask |= kViewInvalidated;
}

void KyDiViewportContext::subDatabaseToBeDestroyed(void* /*database*/) {
    unbind(nullptr);
}

void KyDiViewportContext::unbind(const KyDbObject* leaving) {
    m_document = kKyDiUnboundDocument;
    m_changeMask = 0;
    KyDiImpDbObjectCollection::detachFrom(m_viewportId, leaving, m_objectReactor);
    m_viewportId = KyDbObjectId::kNull;
}

int KyDiViewportContext::updateBinding() {
    int result = 0;
    const KyDiDocument current = KyDiHostAccess::currentDocument();
    if (current != m_document) {
        unbind(nullptr);
        m_document = current;
        m_changeMask = kViewInvalidated | kViewportChanged;
        result = kDocumentMoved;
    }
    const bool busy = viewIsBusy();
    KyDiViewportService* viewports = KyDiHostAccess::viewportService();
    if (m_document == kKyDiNoDocument || busy || viewports == nullptr) {
        return result;
    }
    KyDbObjectId id;
    viewports->getCurrentViewportId(id);
    if (id == m_viewportId) {
        return result;
    }
    KyDiImpDbObjectCollection::detachFrom(m_viewportId, nullptr, m_objectReactor);
    m_viewportId = KyDbObjectId::kNull;
    m_changeMask = kViewInvalidated | kViewportChanged;
    if (!id.isNull() && KyDiImpDbObjectCollection::attachOnce(id, m_objectReactor)) {
        m_viewportId = id;
    }
    return result;
}

int KyDiViewportContext::subRefresh() {
    if (KyDiHostAccess::currentDocument() == kKyDiNoDocument) {
        return 0;
    }
    const bool moved = updateBinding() == kDocumentMoved;
    // Taken before anyone is told: what a reactor queues while it is told
    // waits for the next pass.
    const unsigned unnamed = m_changeMask;
    const unsigned named = m_namedMask;
    const std::vector<KyString> names = std::move(m_changedProperties);
    m_changedProperties.clear();
    m_changeMask = 0;
    m_namedMask = 0;
    if (moved) {
        notifyChanged(this, nullptr, nullptr);
    } else if ((unnamed & kViewportChanged) != 0 || (unnamed != 0 && names.empty())) {
        // The viewport object changed, or the view was drawn anew with no
        // name to tell: whatever the context shows may differ.
        m_reportedMask = unnamed | named;
        notifyChanged(this, nullptr, &m_reportedMask);
    } else if (!names.empty()) {
        m_reportedMask = unnamed | named;
        for (const KyString& name : names) {
            notifyChanged(this, name.kwszPtr(), &m_reportedMask);
        }
    }
    return 0;
}

void KyDiViewportContext::noteChangedProperty(const wchar_t* property) {
    if (std::find(m_changedProperties.begin(), m_changedProperties.end(), property) ==
        m_changedProperties.end()) {
        m_changedProperties.emplace_back(property);
    }
    m_namedMask = kViewInvalidated | kViewportChanged;
}

void KyDiViewportContext::objectClosed(KyDbObjectId /*id*/) {
    m_changeMask |= kViewportChanged;
}

void KyDiViewportContext::objectGoodbye(const KyDbObject* object) {
    unbind(object);
}

void KyDiViewportContext::sysVarChanged(const wchar_t* name) {
    const auto row = m_sysVarRows.find(name);
    if (row == m_sysVarRows.end()) {
        return;
    }
    for (const wchar_t* const* property = row->second; *property != nullptr; ++property) {
        noteChangedProperty(*property);
    }
}
