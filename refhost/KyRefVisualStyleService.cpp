#include "KyRefVisualStyleService.h"

#include "KyRefDocumentManager.h"
#include "KyRefHost.h"
#include "KyRefLayoutViewports.h"
#include "KyRefReadAccess.h"
#include "db/KyAxDocLock.h"
#include "db/KyDbAbstractViewTableRecord.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbDictionary.h"
#include "db/KyDbDictionaryIterator.h"
#include "db/KyDbObjectPointer.h"
#include "db/KyDbViewport.h"
#include "db/KyDbVisualStyle.h"

namespace {

// The kind of the two-dimensional wireframe style.
constexpr int kTwoDimensionalKind = 4;

// The style a view holder names; null for none.
KyDbObjectId namedStyle(const KyDbObject* holder) {
    if (const auto* viewport = kyrxCast<KyDbViewport>(holder)) {
        return viewport->visualStyleId();
    }
    if (const auto* view = kyrxCast<KyDbAbstractViewTableRecord>(holder)) {
        return view->visualStyleId();
    }
    return KyDbObjectId();
}

Kyro::ErrorStatus nameStyle(KyDbObject* holder, KyDbObjectId styleId) {
    if (auto* viewport = kyrxCast<KyDbViewport>(holder)) {
        return viewport->setVisualStyle(styleId);
    }
    if (auto* view = kyrxCast<KyDbAbstractViewTableRecord>(holder)) {
        return view->setVisualStyle(styleId);
    }
    return Kyro::eNotApplicable;
}

}  // namespace

KyDbObjectId KyRefVisualStyleService::shownStyle(KyDbDatabase* database) {
    if (database == nullptr) {
        return KyDbObjectId();
    }
    KyDbObjectId id;
    if (KyRefReadAccess<KyDbObject> holder(KyRefLayoutViewports::viewHolder(database)); holder) {
        id = namedStyle(holder.object());
    }
    if (!id.isNull() && !id.isErased()) {
        return id;
    }
    id.setNull();
    if (KyRefReadAccess<KyDbDictionary> styles(database->visualStyleDictionaryId()); styles) {
        styles->getAt(kDefaultStyle, id);
    }
    return id;
}

Kyro::ErrorStatus KyRefVisualStyleService::showStyle(KyDbDatabase* database, KyDbObjectId styleId,
                                                     bool& changed) {
    changed = false;
    if (database == nullptr) {
        return Kyro::eNoCurrentDocument;
    }
    if (styleId.database() != database ||
        !KyRxClass::isDerivedFrom(styleId.objectClass(), KyDbVisualStyle::desc())) {
        return Kyro::eInvalidInput;
    }
    if (shownStyle(database) == styleId) {
        return Kyro::eOk;
    }
    KyDbObjectPointer<KyDbObject> holder;
    if (const Kyro::ErrorStatus status = KyRefLayoutViewports::openViewHolder(database, holder);
        status != Kyro::eOk) {
        return status;
    }
    const Kyro::ErrorStatus status = nameStyle(holder.object(), styleId);
    changed = status == Kyro::eOk;
    return status;
}

KyRefVisualStyleService::KyRefVisualStyleService(KyRefHost& host) : m_host(host) {}

Kyro::ErrorStatus KyRefVisualStyleService::getCurrent(KyDbObjectId& out) {
    KyDbDatabase* database = m_host.documents().currentDatabase();
    out = shownStyle(database);
    return database != nullptr ? Kyro::eOk : Kyro::eNoCurrentDocument;
}

KyString KyRefVisualStyleService::currentName() {
    KyDbObjectId id;
    getCurrent(id);
    KyRefReadAccess<KyDbVisualStyle> style(id);
    return style ? KyString(style->name()) : KyString(kDefaultStyle);
}

int KyRefVisualStyleService::styleKind(const KyDbObjectId& id) {
    KyRefReadAccess<KyDbVisualStyle> style(id);
    if (!style || style->isInternalUseOnly()) {
        return kUnlistedStyle;
    }
    return style->type();
}

Kyro::ErrorStatus KyRefVisualStyleService::setCurrent(const KyDbObjectId& id, int) {
    KyDbDatabase* database = m_host.documents().currentDatabase();
    if (database == nullptr) {
        return Kyro::eNoCurrentDocument;
    }
    const KyAxDocLock lock(database);
    if (lock.lockStatus() != Kyro::eOk) {
        return lock.lockStatus();
    }
    bool changed = false;
    const Kyro::ErrorStatus status = showStyle(database, id, changed);
    // Another style redraws what the viewport shows, as a regeneration.
    if (changed) {
        m_host.regenerateAll();
    }
    return status;
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
    // A drawing without the default style shows it all the same.
    return style ? style->type() == kTwoDimensionalKind : true;
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
