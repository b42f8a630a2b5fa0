#include "KyRefVisualStyleService.h"

#include "KyRefDocumentManager.h"
#include "KyRefHost.h"
#include "KyRefReadAccess.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbDictionary.h"
#include "db/KyDbDictionaryIterator.h"
#include "db/KyDbVisualStyle.h"

namespace {

// The kind of the two-dimensional wireframe style.
constexpr int kTwoDimensionalKind = 4;

}  // namespace

KyRefVisualStyleService::KyRefVisualStyleService(KyRefHost& host) : m_host(host) {}

Kyro::ErrorStatus KyRefVisualStyleService::getCurrent(KyDbObjectId& out) {
    out.setNull();
    KyDbDatabase* database = m_host.documents().currentDatabase();
    if (database == nullptr) {
        return Kyro::eNoCurrentDocument;
    }
    KyRefReadAccess<KyDbDictionary> styles(database->visualStyleDictionaryId());
    if (styles) {
        styles->getAt(m_current, out);
    }
    return Kyro::eOk;
}

int KyRefVisualStyleService::styleKind(const KyDbObjectId& id) {
    KyRefReadAccess<KyDbVisualStyle> style(id);
    if (!style || style->isInternalUseOnly()) {
        return kUnlistedStyle;
    }
    return style->type();
}

Kyro::ErrorStatus KyRefVisualStyleService::setCurrent(const KyDbObjectId& id, int) {
    KyRefReadAccess<KyDbVisualStyle> style(id);
    if (!style) {
        return Kyro::eInvalidInput;
    }
    // Another style redraws what the viewport shows, as a regeneration.
    if (m_current.compare(style->name()) != 0) {
        m_current = style->name();
        m_host.regenerateAll();
    }
    return Kyro::eOk;
}

Kyro::ErrorStatus KyRefVisualStyleService::getListedStyles(KyDbDatabase* database,
                                                           KyArray<KyDbObjectId>& ids) {
    if (database == nullptr) {
        return Kyro::eInvalidInput;
    }
    KyRefReadAccess<KyDbDictionary> styles(database->visualStyleDictionaryId());
    if (!styles) {
        return styles.status();
    }
    for (KyDbDictionaryIterator it(styles.object()); !it.done(); it.next()) {
        KyRefReadAccess<KyDbVisualStyle> style(it.objectId());
        if (style && !style->isInternalUseOnly()) {
            ids.append(it.objectId());
        }
    }
    return Kyro::eOk;
}

bool KyRefVisualStyleService::isTwoDimensional() {
    KyDbObjectId id;
    getCurrent(id);
    KyRefReadAccess<KyDbVisualStyle> style(id);
    return style ? style->type() == kTwoDimensionalKind : m_current == kDefaultStyle;
}

int KyRefVisualStyleService::getViewResolution() {
    KyRefResbufPtr value;
    return m_host.sysVars().get(L"VIEWRES", value) == KyRefSysVarStatus::kOk ? value->resval.rlong
                                                                             : 0;
}

Kyro::ErrorStatus KyRefVisualStyleService::setViewResolution(int resolution) {
    const KyRefResbufPtr value = KyRefResbuf::makeLong(resolution);
    return m_host.setVariable(L"VIEWRES", *value) == KyRefSysVarStatus::kOk ? Kyro::eOk
                                                                            : Kyro::eInvalidInput;
}
