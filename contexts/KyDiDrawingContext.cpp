#include "contexts/KyDiDrawingContext.h"

#include "contexts/DrawingEffectivePropertyReactor.h"
#include "effective/KyDiImpEffectiveProperty.h"
#include "kydi/KyDiDocumentManager.h"
#include "manager/KyDiManagerModule.h"
#include "manager/KyDiManagerState.h"
#include "manager/KyDiReflectedClasses.h"
#include "manager/host/KyDiHostAccess.h"
#include "rx/KyRxMemberQueryEngine.h"

KYDI_DEFINE_CLASS_MEMBERS(KyDiDrawingContext, kDrawingContext)

KyDiDrawingContext::KyDiDrawingContext(const wchar_t* name)
    : KyDiContextBase(name),
      m_effectiveProperty(KyDiManagerModule::getDrawingEffectiveProperty()),
      m_effectivePropertyReactor(new DrawingEffectivePropertyReactor(this)) {
    m_effectiveProperty->addReactor(m_effectivePropertyReactor);
}

KyDiContext* KyDiDrawingContext::create(const wchar_t* name) {
    auto* context = new KyDiDrawingContext(name);
    // A plot style is written as its item: the wrappers' value filter leaves
    // what is written to this member as it is.
    kydiManagerState().itemTakingMember =
        KyRxMemberQueryEngine::theEngine()->find(context, L"PlotStyle", nullptr);
    return context;
}

KyDiDrawingContext::~KyDiDrawingContext() {
    m_effectiveProperty->removeReactor(m_effectivePropertyReactor);
    delete m_effectivePropertyReactor;
}

void KyDiDrawingContext::reportChange() {
    // As every context, it tells only while a drawing is in front: without
    // one it is inactive, and a drawing that comes changes the active
    // contexts, which tells the manager's clients to read again.
    if (KyDiHostAccess::currentDocument() != kKyDiNoDocument) {
        notifyChanged(this, nullptr, nullptr);
    }
}

bool KyDiDrawingContext::isBound() const {
    const KyDiDocument document = m_effectiveProperty->document();
    return document != kKyDiNoDocument && document != kKyDiUnboundDocument;
}

KyRxMemberIterator* KyDiDrawingContext::subNewMemberIterator() {
    // Until the effective property has found a drawing there is nothing to
    // show.
    if (KyDiHostAccess::currentDocument() == kKyDiNoDocument || !isBound()) {
        return nullptr;
    }
    return newFilteredMemberIterator();
}

bool KyDiDrawingContext::subIsActive() const {
    KyDiDocumentManager* documents = KyDiHostAccess::documentManager();
    return KyDiHostAccess::currentDocument() != kKyDiNoDocument && documents != nullptr &&
           documents->documentCount() >= 1 && isBound();
}

short KyDiDrawingContext::subPriority() const {
    return 0;
}
