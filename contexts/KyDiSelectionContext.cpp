#include "contexts/KyDiSelectionContext.h"

#include <algorithm>
#include <memory>

#include "collections/CSelectedItemHelper.h"
#include "contexts/ClassNameReader.h"
#include "contexts/KyDiHatchCumulativeAreaProperty.h"
#include "db/KyDbGuid.h"
#include "db/KyDbViewport.h"
#include "kydi/KyDiCollectionReactor.h"
#include "kydi/KyDiDbItem.h"
#include "kydi/KyDiHost.h"
#include "kydi/KyDiManager.h"
#include "kydi/KyDiObservableCollection.h"
#include "manager/KyDiReflectedClasses.h"
#include "manager/host/EditorCommandScope.h"
#include "manager/host/KyDiHostAccess.h"
#include "reflection/KyDiMemberIterator.h"
#include "rx/KyRxDictionary.h"
#include "rx/KyRxMember.h"
#include "rx/KyRxProperty.h"

KYDI_DEFINE_CLASS_MEMBERS(KyDiSelectionContext, kSelectionContext)

IKyDiSelectionItemProvider::~IKyDiSelectionItemProvider() = default;

// Hears the selected items: a new list, or a list built anew.
class KyDiSelectedItemsReactor : public KyDiCollectionReactor {
public:
    explicit KyDiSelectedItemsReactor(KyDiSelectionContext* owner) : m_owner(owner) {}
    void itemsChanged(const KyDiItemArray&, const KyDiItemArray&) override {
        m_owner->selectionChanged();
    }
    void collectionReset() override { m_owner->selectionChanged(); }
    // The list tells the change of a selected object as a modification of
    // its item: that is the change a mark of a write under a filter waits
    // for.
    void itemsModified(const KyDiItemArray&) override { m_owner->selectedObjectsModified(); }

private:
    KyDiSelectionContext* m_owner;
};

namespace {

KyDiSelectionContext* g_instance = nullptr;

// The command scope a write of the selection stands in, one step of undo.
constexpr wchar_t kWriteScope[] = L"OPM_CHGPROP";

bool named(const KyArray<KyString>& names, const KyString& name) {
    for (int i = 0; i < names.length(); ++i) {
        if (names[i].compare(name) == 0) {
            return true;
        }
    }
    return false;
}

}  // namespace

KyDiSelectionContext::KyDiSelectionContext(const wchar_t* name)
    : KyDiContextBase(name),
      m_selected(KyDiManager::getKnownCollection(L"KYDI_DATAITEM_SELECTED_ITEMS")),
      m_reactor(new KyDiSelectedItemsReactor(this)) {
    if (m_selected != nullptr) {
        m_selected->addReactor(m_reactor);
    }
    g_instance = this;
}

KyDiSelectionContext::~KyDiSelectionContext() {
    if (m_selected != nullptr) {
        m_selected->removeReactor(m_reactor);
    }
    delete m_reactor;
    if (g_instance == this) {
        g_instance = nullptr;
    }
}

void KyDiSelectionContext::buildMembers(KyRxMemberCollectionBuilder& builder, void* /*userData*/) {
    builder.add(new KyDiSelectionContextCumulativeAreaProperty(builder.owner()));
}

KyDiContext* KyDiSelectionContext::create(const wchar_t* name) {
    return new KyDiSelectionContext(name);
}

KyDiSelectionContext* KyDiSelectionContext::instance() {
    return g_instance;
}

const KyDiItemArray& KyDiSelectionContext::items() const {
    static const KyDiItemArray kNone;
    return m_selected != nullptr ? m_selected->getItems() : kNone;
}

SelectionCommonValues::Kind KyDiSelectionContext::kind() const {
    return m_selected != nullptr
               ? static_cast<KyDiDataSelectedItemCollectionImp*>(m_selected->imp())
                     ->subEntitySelection()
               : KyDiDataSelectedItemCollectionImp::kPlainObjects;
}

SelectionCommonValues::Filter KyDiSelectionContext::filter() const {
    return {m_filterClass, m_filterName};
}

short KyDiSelectionContext::subPriority() const {
    return 20;
}

bool KyDiSelectionContext::subIsActive() const {
    const int count = items().length();
    // Beyond the limit the selection is too large to sum up; 0 or less, or
    // a variable that can't be read, is no limit.
    short limit = 0;
    const bool tooMany =
        KyDiHostAccess::readShort(L"PROPOBJLIMIT", limit) && limit > 0 && count > limit;
    return count >= 1 && !tooMany;
}

KyRxMemberIterator* KyDiSelectionContext::subNewMemberIterator() {
    if (items().isEmpty()) {
        return nullptr;
    }
    // A listing starts the values over.
    m_valueCache.clear();
    m_listed.clear();
    m_modifiedObjects.setLogicalLength(0);
    KyDiMemberArray members(0, 16);
    if (SelectionCommonValues::buildCommonMembers(items(), kind(), filter(), m_filteredObjects,
                                                  members) != Kyro::eOk ||
        members.isEmpty()) {
        return nullptr;
    }
    // A panel reads what it listed: those values are read together.
    for (int i = 0; i < members.length(); ++i) {
        if (SelectionCommonValues::readsTogether(members[i])) {
            m_listed.push_back(static_cast<const KyRxPropertyBase*>(members[i]));
        }
    }
    return new KyDiMemberIterator(members);
}

Kyro::ErrorStatus KyDiSelectionContext::getValue(const KyRxPropertyBase* property, KyRxValue& value,
                                                 int index, const wchar_t* key) {
    if (items().isEmpty()) {
        return Kyro::eNotApplicable;
    }
    if (const auto cached = m_valueCache.find(property); cached != m_valueCache.end()) {
        value = cached->second;
        return Kyro::eOk;
    }
    if (index < 0 && key == nullptr &&
        std::find(m_listed.begin(), m_listed.end(), property) != m_listed.end()) {
        return readListedValues(property, value);
    }
    const Kyro::ErrorStatus status = SelectionCommonValues::getCommonValue(
        items(), kind(), property, value, index, key, filter());
    if (status == Kyro::eOk && kyrxCast<KyRxProperty>(property) != nullptr) {
        m_valueCache[property] = value;
    }
    return status;
}

Kyro::ErrorStatus KyDiSelectionContext::readListedValues(const KyRxPropertyBase* wanted,
                                                         KyRxValue& value) {
    // Every listed value not known yet, in one walk: each object is opened
    // once, not once a value.
    std::vector<const KyRxPropertyBase*> unknown;
    for (const KyRxPropertyBase* listed : m_listed) {
        if (!m_valueCache.contains(listed)) {
            unknown.push_back(listed);
        }
    }
    std::vector<std::pair<Kyro::ErrorStatus, KyRxValue>> results;
    SelectionCommonValues::getCommonValues(items(), kind(), unknown, filter(), results);
    Kyro::ErrorStatus status = Kyro::eInvalidInput;
    for (size_t i = 0; i < unknown.size(); ++i) {
        if (results[i].first == Kyro::eOk) {
            m_valueCache[unknown[i]] = results[i].second;
        }
        if (unknown[i] == wanted) {
            status = results[i].first;
            value = results[i].second;
        }
    }
    return status;
}

Kyro::ErrorStatus KyDiSelectionContext::setValue(const KyRxPropertyBase* property,
                                                 const KyRxValue& value, int index,
                                                 const wchar_t* key) {
    if (items().isEmpty()) {
        return Kyro::eNotApplicable;
    }
    const bool varies = value.isVaries();
    const EditorCommandScope scope(varies ? nullptr : kWriteScope);
    KyDiItemArray written = items();
    SelectionCommonValues::Kind writtenKind = kind();
    KyDiSelectionService* selection = KyDiHostAccess::selectionService();
    if (selection != nullptr && !varies) {
        int total = 0;
        int excludedA = 0;
        int excludedB = 0;
        KyArray<KyDbObjectId> idsA(0, 8);
        KyArray<KyDbObjectId> idsB(0, 8);
        selection->filterForWrite(KyDiSelectionService::kChangeProperties, total, excludedA,
                                  excludedB, m_filterClass, &idsA, &idsB, m_filterName);
        if (excludedA >= 1 && excludedB >= 1) {
            objectChangedInSelection(KyDbObjectId());
        }
        const int excluded = excludedA + excludedB;
        for (int i = 0; i < idsB.length(); ++i) {
            idsA.append(idsB[i]);
        }
        if (excluded >= 1) {
            if (excluded == total) {
                return Kyro::eAllObjectsExcluded;
            }
            // Each excluded id takes out the first item that stands for it,
            // in one walk however many are excluded.
            std::map<KyDbObjectId, int> toTakeOut;
            for (int i = 0; i < idsA.length(); ++i) {
                ++toTakeOut[idsA[i]];
            }
            KyDiItemArray kept(0, 8);
            kept.setPhysicalLength(written.length());
            for (int j = 0; j < written.length(); ++j) {
                const auto found = toTakeOut.find(KyDiImpDbObjectCollection::idOf(written[j]));
                if (found != toTakeOut.end() && found->second > 0) {
                    --found->second;
                    continue;
                }
                kept.append(written[j]);
            }
            written = kept;
            if (writtenKind != KyDiDataSelectedItemCollectionImp::kPlainObjects) {
                writtenKind = KyDiDataSelectedItemCollectionImp::reclassify(written);
            }
        }
    }
    bool classChanged = false;
    const Kyro::ErrorStatus status = SelectionCommonValues::setCommonValue(
        written, writtenKind, property, value, index, key, filter(), classChanged);
    if (classChanged) {
        // A write that changed the kind of an object ends the narrowing.
        m_filterClass = nullptr;
        selectionChanged();
    }
    return status;
}

KyRxValueIterator* KyDiSelectionContext::newValueIterator(const KyRxPropertyBase* property) {
    if (items().isEmpty()) {
        return nullptr;
    }
    return SelectionCommonValues::newCommonValueIterator(items(), kind(), property, filter(),
                                                         m_filteredObjects);
}

void KyDiSelectionContext::resetFilter() {
    // The values read under another filter are of other objects.
    m_valueCache.clear();
    m_listed.clear();
    m_modifiedObjects.setLogicalLength(0);
    m_filteredObjects.clear();
    m_filterClass = nullptr;
    m_filterName = KyString();
}

void KyDiSelectionContext::selectionChanged() {
    // The one mark left by a write under a filter: the change of the list
    // only reflects the written object, and the filter stays.
    if (m_filterClass != nullptr && !m_modifiedObjects.isEmpty()) {
        const bool onlyTheMark = m_modifiedObjects.length() == 1;
        m_modifiedObjects.setLogicalLength(0);
        if (onlyTheMark) {
            return;
        }
    }
    resetFilter();
    m_visitCursor = 0;
    m_visitedClasses.clear();
    m_groups.clear();
    m_valueCache.clear();
    m_listed.clear();
    narrowClippedViewports();
    notifyChanged(this, nullptr, nullptr);
}

void KyDiSelectionContext::selectedObjectsModified() {
    // Only what a filter waits for: without one, the change was told when
    // the object changed.
    if (m_filterClass != nullptr && !m_modifiedObjects.isEmpty()) {
        selectionChanged();
    }
}

void KyDiSelectionContext::objectChangedInSelection(KyDbObjectId id) {
    if (m_filterClass != nullptr && !id.isNull()) {
        if (m_modifiedObjects.isEmpty()) {
            m_modifiedObjects.append(KyDbObjectId());
        }
        if (!m_filteredObjects.contains(id)) {
            m_modifiedObjects.append(id);
        }
    }
    // The values go before anybody is told: a reactor that reads while it is
    // told reads the objects as they are now.
    m_valueCache.clear();
    notifyChanged(this, nullptr, nullptr);
}

void KyDiSelectionContext::narrowClippedViewports() {
    // A viewport with a clip of its own and its clip entity are selected
    // together; the user means the viewports.
    int clipped = 0;
    int others = 0;
    for (KyDiDynamicObject* item : items()) {
        const CSelectedItemHelper opened(kyrxCast<KyDiDbItem>(static_cast<KyRxObject*>(item)),
                                         KyDb::kForRead, kind());
        KyRxObject* object = opened.object();
        if (opened.getLastError() != Kyro::eOk || object == nullptr) {
            continue;
        }
        if (const auto* viewport = kyrxCast<KyDbViewport>(object)) {
            clipped += viewport->isNonRectClipOn() ? 1 : 0;
        } else if (kyrxCast<KyDbEntity>(object) != nullptr) {
            ++others;
        }
    }
    if (clipped > 0 && clipped == others) {
        setFilterClass(KyDbViewport::desc());
    }
}

Kyro::ErrorStatus KyDiSelectionContext::buildGroups() {
    if (!m_groups.empty()) {
        return Kyro::eOk;
    }
    if (items().isEmpty()) {
        return Kyro::eInvalidInput;
    }
    KyArray<KyDbObjectId> all(0, 8);
    std::map<const KyRxClass*, size_t> byClass;
    std::map<KyString, size_t, KyStringLess> byName;
    Kyro::ErrorStatus status = Kyro::eOk;
    ClassNameReader names;
    for (KyDiDynamicObject* item : items()) {
        const CSelectedItemHelper opened(kyrxCast<KyDiDbItem>(static_cast<KyRxObject*>(item)),
                                         KyDb::kForRead, kind());
        KyRxObject* object = opened.object();
        status = opened.getLastError();
        if (status != Kyro::eOk || object == nullptr) {
            break;
        }
        KyRxClass* cls = object->isA();
        if (cls == nullptr) {
            status = Kyro::eInvalidInput;
            break;
        }
        const KyDbObjectId id = KyDiImpDbObjectCollection::idOf(item);
        all.append(id);
        // An object the host keeps from being shown is no group's.
        KyGuid classId;
        if (const auto* dbObject = kyrxCast<KyDbObject>(object);
            dbObject != nullptr && dbObject->getClassID(&classId) == Kyro::eNotShown) {
            continue;
        }
        const KyString name = names.read(object);
        const auto known = name.isEmpty() ? byClass.find(cls) : byClass.end();
        const auto knownName = name.isEmpty() ? byName.end() : byName.find(name);
        size_t at = m_groups.size();
        if (name.isEmpty() ? known != byClass.end() : knownName != byName.end()) {
            at = name.isEmpty() ? known->second : knownName->second;
            ++m_groups[at].record.count;
            m_groups[at].ids.append(id);
            continue;
        }
        Group group;
        group.record.objectClass = cls;
        group.record.className = name;
        group.record.localizedName = SelectionCommonValues::memberText(object, L"LocalizedName");
        group.record.count = 1;
        group.ids.append(id);
        m_groups.push_back(std::move(group));
        if (name.isEmpty()) {
            byClass[cls] = at;
        } else {
            byName[name] = at;
        }
    }
    if (status != Kyro::eOk) {
        m_groups.clear();
        return status;
    }
    if (KyDiImageService* images =
            KyDiHostAccess::host() != nullptr ? KyDiHostAccess::host()->imageService() : nullptr) {
        for (Group& group : m_groups) {
            group.record.analysis = images->analyze(all, group.ids);
        }
        m_allGroupsFlag = images->analyze(all, all);
    }
    return Kyro::eOk;
}

int KyDiSelectionContext::getItemCount() {
    buildGroups();
    return static_cast<int>(m_groups.size());
}

KyDiSelectionItem KyDiSelectionContext::getItem(int index) {
    buildGroups();
    if (index < 0 || index >= static_cast<int>(m_groups.size())) {
        return KyDiSelectionItem();
    }
    return m_groups[static_cast<size_t>(index)].record;
}

bool KyDiSelectionContext::setFilterClass(KyRxClass* cls) {
    resetFilter();
    if (cls == nullptr) {
        return true;
    }
    buildGroups();
    for (const Group& group : m_groups) {
        if (group.record.className.isEmpty() && group.record.objectClass == cls) {
            m_filterClass = cls;
            return true;
        }
    }
    return false;
}

bool KyDiSelectionContext::setFilter(KyRxClass* cls, KyString name) {
    resetFilter();
    if (cls == nullptr) {
        return true;
    }
    buildGroups();
    for (const Group& group : m_groups) {
        const bool match =
            name.isEmpty()
                ? group.record.className.isEmpty() && group.record.objectClass == cls
                : !group.record.className.isEmpty() && group.record.className.compare(name) == 0;
        if (match) {
            m_filterClass = group.record.objectClass;
            m_filterName = group.record.className;
            return true;
        }
    }
    return false;
}

bool KyDiSelectionContext::containsAnyClass(const KyArray<KyString>& names) {
    if (buildGroups() != Kyro::eOk) {
        return false;
    }
    for (const KyString& visited : m_visitedClasses) {
        if (named(names, visited)) {
            return true;
        }
    }
    for (; m_visitCursor < static_cast<int>(m_groups.size()); ++m_visitCursor) {
        const KyString name(
            m_groups[static_cast<size_t>(m_visitCursor)].record.objectClass->name());
        m_visitedClasses.insert(name);
        if (named(names, name)) {
            return true;
        }
    }
    return false;
}

bool KyDiSelectionContext::containsOnlyClasses(const KyArray<KyString>& names) {
    if (buildGroups() != Kyro::eOk) {
        return false;
    }
    if (static_cast<int>(m_visitedClasses.size()) > names.length()) {
        return false;
    }
    for (const KyString& visited : m_visitedClasses) {
        if (!named(names, visited)) {
            return false;
        }
    }
    for (; m_visitCursor < static_cast<int>(m_groups.size()); ++m_visitCursor) {
        const KyRxClass* cls = m_groups[static_cast<size_t>(m_visitCursor)].record.objectClass;
        KyString name(cls->name());
        // The wrapper class of raster images counts as the image class.
        const KyRxClass* wrapper = kyrxFindKyRxClass(L"TovaDbRasterImage");
        if (wrapper != nullptr && cls == wrapper) {
            name = KyString(L"KyDbRasterImage");
        }
        m_visitedClasses.insert(name);
        if (!named(names, name)) {
            return false;
        }
    }
    return true;
}
