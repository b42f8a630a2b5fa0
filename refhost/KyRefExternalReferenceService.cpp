#include "KyRefExternalReferenceService.h"

#include "KyRefDocumentManager.h"
#include "KyRefHost.h"

KyRefExternalReferenceService::KyRefExternalReferenceService(KyRefHost& host) : m_host(host) {}

Kyro::ErrorStatus KyRefExternalReferenceService::getBackgroundOverride(KyCmColor& out,
                                                                       KyDbDatabase* database) {
    KyRefDocumentManager& documents = m_host.documents();
    const KyDiDocument document =
        database != nullptr ? documents.documentOf(database) : documents.currentDocument();
    if (document == kKyDiNoDocument) {
        return database != nullptr ? Kyro::eInvalidInput : Kyro::eNoCurrentDocument;
    }
    // Document handles are never given out twice, so a setting left behind
    // by a closed document can't reach another one.
    const auto found = m_backgrounds.find(document);
    if (found != m_backgrounds.end()) {
        out = found->second;
    } else {
        out = KyCmColor();
        out.setColorMethod(KyCmColor::kNone);
    }
    return Kyro::eOk;
}

void KyRefExternalReferenceService::setBackgroundOverride(KyDiDocument document,
                                                          const KyCmColor& color) {
    if (color.isNone()) {
        m_backgrounds.erase(document);
    } else {
        m_backgrounds[document] = color;
    }
}
