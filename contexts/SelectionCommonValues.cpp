#include "contexts/SelectionCommonValues.h"

#include <algorithm>
#include <cwchar>
#include <map>
#include <memory>
#include <vector>

#include "collections/CSelectedItemHelper.h"
#include "contexts/ClassNameReader.h"
#include "contexts/KyDiSelectionContext.h"
#include "db/KyAxDocLock.h"
#include "db/KyDbEntity.h"
#include "kydi/KyDiDbItem.h"
#include "kydi/KyDiExpression.h"
#include "kydi/KyDiFunctions.h"
#include "kydi/KyDiManager.h"
#include "kydi/KyDiObservableCollection.h"
#include "manager/NameConverters.h"
#include "manager/host/IKyDbDynBlockReferenceHost.h"
#include "manager/host/KyDiHostAccess.h"
#include "reflection/HostValueAccess.h"
#include "reflection/KyDiMemberQueryContext.h"
#include "reflection/KyDiValueIterator.h"
#include "reflection/PropertyWrapping.h"
#include "rx/KyRxBoxedValue.h"
#include "rx/KyRxMemberQueryEngine.h"
#include "rx/KyRxMethod.h"
#include "rx/KyRxProperty.h"
#include "rx/KyRxStandardAttributes.h"

namespace {

using Kind = SelectionCommonValues::Kind;
using Filter = SelectionCommonValues::Filter;

KyRxMemberQueryEngine& engine() {
    return *KyRxMemberQueryEngine::theEngine();
}

// The host member a property stands for: the source of a wrapper, or itself.
const KyRxMember* hostMember(const KyRxMember* member) {
    const KyRxMember* source = PropertyWrapping::sourceMember(member);
    return source != nullptr ? source : member;
}

bool passes(const Filter& filter, const KyRxObject* object, ClassNameReader& names) {
    return filter.cls == nullptr ||
           (object->isA() == filter.cls && names.read(object).compare(filter.name) == 0);
}

// An item of the selection, opened as the kind of selection says; the
// object is the part when one is open.
struct Opened {
    Opened(KyDiDynamicObject* item, KyDb::OpenMode mode, Kind kind)
        : helper(kyrxCast<KyDiDbItem>(static_cast<KyRxObject*>(item)), mode, kind) {}
    CSelectedItemHelper helper;
};

// The member of a property on each object, found once per class, or per
// "ClassName" where objects of one class differ by it.
class Resolver {
public:
    explicit Resolver(const KyRxPropertyBase* property) : m_name(property->name()) {}

    // The host member (never a wrapper) of the property's name on the
    // object; null when it has none. The last answer is kept apart: the
    // objects of a selection come mostly in runs of one class.
    const KyRxMember* resolve(const KyRxObject* object, const KyString& name,
                              const Filter& filter) {
        const bool plain = name.isEmpty() && filter.name.isEmpty();
        if (plain && object->isA() == m_lastClass && m_lastClass != nullptr) {
            return m_lastMember;
        }
        const KyRxMember* member = lookUp(object, name, filter);
        if (plain) {
            m_lastClass = object->isA();
            m_lastMember = member;
        }
        return member;
    }

private:
    const KyRxMember* lookUp(const KyRxObject* object, const KyString& name, const Filter& filter) {
        const bool byName = !name.isEmpty() || !filter.name.isEmpty();
        if (byName) {
            if (const auto found = m_byName.find(name); found != m_byName.end()) {
                return found->second;
            }
        } else if (const auto found = m_byClass.find(object->isA()); found != m_byClass.end()) {
            return found->second;
        }
        const KyRxMember* found =
            engine().find(object, m_name.kwszPtr(), engine().promotingContext());
        const KyRxMember* member = found != nullptr ? hostMember(found) : nullptr;
        if (member != nullptr) {
            if (byName) {
                m_byName[name] = member;
            } else {
                m_byClass[object->isA()] = member;
            }
        }
        return member;
    }

    KyString m_name;
    const KyRxClass* m_lastClass = nullptr;
    const KyRxMember* m_lastMember = nullptr;
    std::map<const KyRxClass*, const KyRxMember*> m_byClass;
    std::map<KyString, const KyRxMember*, KyStringLess> m_byName;
};

// A value the same on two objects: of one type, and equal by its type.
bool same(const KyRxValue& a, const KyRxValue& b) {
    return a.type() == b.type() && a == b;
}

// Whether `object` counts under `filter`: eOk when it does, eNotApplicable
// when the filter leaves it out, eInvalidInput for an object without a
// class.
Kyro::ErrorStatus countsUnder(const Filter& filter, const KyRxObject* object,
                              const KyString& name) {
    if (name.isEmpty() && filter.name.isEmpty()) {
        if (object->isA() == nullptr) {
            return Kyro::eInvalidInput;
        }
        if (filter.cls != nullptr && object->isA() != filter.cls) {
            return Kyro::eNotApplicable;
        }
    } else if (filter.cls != nullptr && filter.name.compare(name) != 0) {
        return Kyro::eNotApplicable;
    }
    return Kyro::eOk;
}

// The common value of one property, folded object by object: the first
// value read, "varies" at the first that differs, or the status of the first
// failure.
class CommonValueFold {
public:
    CommonValueFold(const KyRxPropertyBase* property, int index, const wchar_t* key)
        : m_property(property), m_resolver(property), m_index(index), m_key(key) {}

    // Folds in the value of `object` (of "ClassName" `name`); true when the
    // value is settled and no further object need be read.
    bool fold(const KyRxObject* object, const KyString& name, const Filter& filter) {
        const KyRxMember* member = m_resolver.resolve(object, name, filter);
        if (member == nullptr) {
            return fail(Kyro::eInvalidInput);
        }
        // The formula extension and the conversion of names come with the
        // class: asked again only when the class changes.
        if (object->isA() != m_class) {
            m_class = object->isA();
            m_formulas = HostValueAccess::formulasOf(object);
            m_converts = NameConverters::convertsOn(m_class, m_property->name());
        }
        KyRxValue current;
        const Kyro::ErrorStatus status =
            HostValueAccess::readHostValue(object, member, current, m_index, m_key, m_formulas);
        if (status == Kyro::eAmbiguousOutput) {
            // The object's own value varies (its parts differ).
            m_result = KyRxValue::varies();
            return true;
        }
        if (status != Kyro::eOk) {
            return fail(status);
        }
        if (m_converts) {
            NameConverters::toLocal(m_class, m_property->name(), current);
        }
        if (m_counted++ == 0) {
            m_result = current;
            return false;
        }
        if (!same(m_result, current)) {
            m_result = valueCast<KyDiExpression>(&current) == nullptr
                           ? KyRxValue::varies()
                           : KyRxValue(KyDiExpression{KyRxValue::varies(), KyString()});
            return true;
        }
        return false;
    }
    // The walk ends in a failure: the value is that status.
    bool fail(Kyro::ErrorStatus status) {
        m_status = status;
        m_failed = true;
        return true;
    }
    // The value, as a client reads it (a record as its item); the status.
    Kyro::ErrorStatus finish(KyRxValue& value) {
        if (m_failed) {
            value = KyRxValue();
            return m_status;
        }
        value = m_result;
        if (!value.isEmpty() && !value.isVaries()) {
            KyDiConvertToDataItem(value);
        }
        return Kyro::eOk;
    }

private:
    const KyRxPropertyBase* m_property;
    Resolver m_resolver;
    int m_index;
    const wchar_t* m_key;
    // What comes with the class of the objects read last.
    const KyRxClass* m_class = nullptr;
    const KyRxPropertyExpressionPE* m_formulas = nullptr;
    bool m_converts = false;
    KyRxValue m_result;
    int m_counted = 0;
    Kyro::ErrorStatus m_status = Kyro::eOk;
    bool m_failed = false;
};

// The classes an object's members come from: its own and those of its
// facets.
std::vector<const KyRxClass*> memberClasses(const KyRxObject* object) {
    KyDiMemberQueryContext probe;
    const std::unique_ptr<KyRxMemberIterator> unused(engine().newMemberIterator(object, &probe));
    return probe.classes();
}

}  // namespace

KyString SelectionCommonValues::memberText(const KyRxObject* object, const wchar_t* name) {
    return ClassNameReader::textOf(
        object, kyrxCast<KyRxProperty>(engine().find(object, name, engine().promotingContext())));
}

const KyRxClass* SelectionCommonValues::lowestCommonClass(const KyRxClass* a, const KyRxClass* b) {
    if (a == nullptr || b == nullptr) {
        return nullptr;
    }
    if (a == b) {
        return a;
    }
    std::set<const KyRxClass*> chainOfB;
    for (const KyRxClass* up = b; up != nullptr; up = up->myParent()) {
        chainOfB.insert(up);
    }
    for (const KyRxClass* up = a; up != nullptr; up = up->myParent()) {
        if (chainOfB.contains(up)) {
            return up;
        }
    }
    return nullptr;
}

Kyro::ErrorStatus SelectionCommonValues::buildCommonMembers(const KyDiItemArray& items, Kind kind,
                                                            const Filter& filter, IdSet& filtered,
                                                            KyDiMemberArray& members) {
    filtered.clear();
    const KyRxClass* commonClass = nullptr;
    std::set<const KyRxClass*> seen;
    std::vector<const KyRxClass*> running;
    bool membersLeft = true;
    IKyDbDynBlockReferenceHost* dynamicBlocks = IKyDbDynBlockReferenceHost::instance();
    ClassNameReader names;
    for (KyDiDynamicObject* item : items) {
        const Opened opened(item, KyDb::kForRead, kind);
        if (opened.helper.getLastError() != Kyro::eOk) {
            return opened.helper.getLastError();
        }
        KyRxObject* object = opened.helper.object();
        if (object == nullptr) {
            return Kyro::eOk;
        }
        const KyRxClass* cls = object->isA();
        if (cls == nullptr) {
            return Kyro::eInvalidInput;
        }
        if (filter.cls != nullptr) {
            if (!passes(filter, object, names)) {
                continue;
            }
            if (const auto* record = kyrxCast<KyDiDbItem>(static_cast<KyRxObject*>(item))) {
                filtered.insert(record->objectId());
            }
        }
        // Objects of one class show the same members, but for dynamic block
        // references, whose members are their own.
        auto* entity = kyrxCast<KyDbEntity>(object);
        if (seen.contains(cls) && !(dynamicBlocks != nullptr && entity != nullptr &&
                                    dynamicBlocks->isDynamicBlockReference(entity))) {
            continue;
        }
        commonClass = commonClass == nullptr ? cls : lowestCommonClass(commonClass, cls);
        if (membersLeft) {
            const std::vector<const KyRxClass*> classes = memberClasses(object);
            if (classes.empty()) {
                membersLeft = false;
            } else if (running.empty()) {
                running = classes;
            } else {
                std::vector<const KyRxClass*> meet;
                for (const KyRxClass* a : running) {
                    for (const KyRxClass* b : classes) {
                        const KyRxClass* c = lowestCommonClass(a, b);
                        if (c != nullptr && std::find(meet.begin(), meet.end(), c) == meet.end()) {
                            meet.push_back(c);
                        }
                    }
                }
                running = std::move(meet);
            }
            if (running.empty()) {
                membersLeft = false;
            }
        }
        seen.insert(cls);
    }
    if (!membersLeft) {
        running.clear();
    }
    KyRxClassArray classes(0, 8);
    for (const KyRxClass* cls : running) {
        classes.append(cls);
    }
    // The lowest common class first, then the running classes; a member met
    // again further on is hidden by the promoting context.
    if (commonClass != nullptr) {
        classes.insertAt(0, commonClass);
    }
    if (classes.isEmpty()) {
        return Kyro::eOk;
    }
    const std::unique_ptr<KyRxMemberIterator> found(
        engine().promotingContext()->newMemberIterator(classes));
    if (found == nullptr) {
        return Kyro::eNullObjectPointer;
    }
    bool cumulative = false;
    for (; !found->done(); found->next()) {
        const KyRxMember* member = found->current();
        const bool shown =
            kyrxCast<KyRxPropertyBase>(member) != nullptr ||
            (kind == Kind::kCellsOrComplex && kyrxCast<KyRxMethod>(member) != nullptr);
        if (!shown) {
            continue;
        }
        if (const KyRxMember* wrapped = PropertyWrapping::wrapMember(member)) {
            members.append(const_cast<KyRxMember*>(wrapped));
            cumulative = cumulative ||
                         (kyrxCast<KyRxProperty>(member) != nullptr &&
                          member->attributes().get(KyRxCumulativeAttribute::desc()) != nullptr);
        }
    }
    // A shared property that adds up over a selection (a hatch's area) brings
    // the context's own members, which add it up.
    if (cumulative) {
        appendSelectionContextMembers(members);
    }
    return Kyro::eOk;
}

void SelectionCommonValues::appendSelectionContextMembers(KyDiMemberArray& members) {
    KyDiSelectionContext* context = KyDiSelectionContext::instance();
    const std::unique_ptr<KyRxMemberIterator> own(
        context != nullptr ? engine().newMemberIterator(context) : nullptr);
    for (; own != nullptr && !own->done(); own->next()) {
        if (kyrxCast<KyRxPropertyBase>(own->current()) == nullptr) {
            continue;
        }
        if (const KyRxMember* wrapped = PropertyWrapping::wrapMember(own->current())) {
            members.append(const_cast<KyRxMember*>(wrapped));
        }
    }
}

bool SelectionCommonValues::hasSelectionAffinity(const KyRxMember* member) {
    const auto* affinity = static_cast<const KyRxAffinityAttribute*>(
        member->attributes().get(KyRxAffinityAttribute::desc()));
    return kyrxCast<KyRxProperty>(member) != nullptr && affinity != nullptr &&
           std::wcsncmp(affinity->name(), L"SelectionContext", 16) == 0;
}

Kyro::ErrorStatus SelectionCommonValues::getCommonValue(const KyDiItemArray& items, Kind kind,
                                                        const KyRxPropertyBase* property,
                                                        KyRxValue& value, int index,
                                                        const wchar_t* key, const Filter& filter) {
    value = KyRxValue();
    if (items.length() > 1 && kyrxCast<KyRxCollectionProperty>(hostMember(property)) != nullptr) {
        // The one object a filter of the selection left stands for all.
        const KyDiSelectionContext* context = KyDiSelectionContext::instance();
        if (context == nullptr || !context->filtersToOne()) {
            return Kyro::eNotApplicable;
        }
    }
    // The context's own members sum the selection up: they read the items
    // themselves, given as one boxed array.
    if (const KyRxMember* own = hostMember(property); hasSelectionAffinity(own)) {
        const KyRxValue array(const_cast<KyDiItemArray*>(&items));
        const KyRxBoxedValueOnStack boxed(array);
        const Kyro::ErrorStatus status =
            static_cast<const KyRxProperty*>(own)->getValue(&boxed, value);
        if (status == Kyro::eOk && !value.isEmpty() && !value.isVaries()) {
            KyDiConvertToDataItem(value);
        }
        return status;
    }
    CommonValueFold fold(property, index, key);
    ClassNameReader names;
    for (KyDiDynamicObject* item : items) {
        const Opened opened(item, KyDb::kForRead, kind);
        KyRxObject* object = opened.helper.object();
        if (opened.helper.getLastError() != Kyro::eOk || object == nullptr) {
            return opened.helper.getLastError();
        }
        const KyString name = names.read(object);
        const Kyro::ErrorStatus counts = countsUnder(filter, object, name);
        if (counts == Kyro::eNotApplicable) {
            continue;
        }
        if (counts != Kyro::eOk) {
            return counts;
        }
        if (fold.fold(object, name, filter)) {
            break;
        }
    }
    return fold.finish(value);
}

bool SelectionCommonValues::readsTogether(const KyRxMember* member) {
    const KyRxMember* host = member != nullptr ? hostMember(member) : nullptr;
    return kyrxCast<KyRxProperty>(member) != nullptr && kyrxCast<KyRxProperty>(host) != nullptr &&
           !hasSelectionAffinity(host);
}

void SelectionCommonValues::getCommonValues(
    const KyDiItemArray& items, Kind kind, const std::vector<const KyRxPropertyBase*>& properties,
    const Filter& filter, std::vector<std::pair<Kyro::ErrorStatus, KyRxValue>>& results) {
    std::vector<CommonValueFold> folds;
    folds.reserve(properties.size());
    for (const KyRxPropertyBase* property : properties) {
        folds.emplace_back(property, -1, nullptr);
    }
    results.assign(properties.size(), {Kyro::eOk, KyRxValue()});
    // Each object is opened once for every value still open to doubt.
    std::vector<size_t> open(properties.size());
    for (size_t i = 0; i < open.size(); ++i) {
        open[i] = i;
    }
    ClassNameReader names;
    for (KyDiDynamicObject* item : items) {
        if (open.empty()) {
            break;
        }
        const Opened opened(item, KyDb::kForRead, kind);
        KyRxObject* object = opened.helper.object();
        Kyro::ErrorStatus failed = opened.helper.getLastError();
        KyString name;
        if (failed == Kyro::eOk && object != nullptr) {
            name = names.read(object);
            failed = countsUnder(filter, object, name);
            if (failed == Kyro::eNotApplicable) {
                continue;
            }
        }
        if (failed != Kyro::eOk || object == nullptr) {
            // What the walk of each value would answer at this object.
            for (size_t i : open) {
                folds[i].fail(failed);
            }
            break;
        }
        std::vector<size_t> still;
        for (size_t i : open) {
            if (!folds[i].fold(object, name, filter)) {
                still.push_back(i);
            }
        }
        open.swap(still);
    }
    for (size_t i = 0; i < folds.size(); ++i) {
        results[i].first = folds[i].finish(results[i].second);
    }
}

Kyro::ErrorStatus SelectionCommonValues::setCommonValue(const KyDiItemArray& items, Kind kind,
                                                        const KyRxPropertyBase* property,
                                                        const KyRxValue& value, int index,
                                                        const wchar_t* key, const Filter& filter,
                                                        bool& classChanged) {
    classChanged = false;
    if (value.isEmpty()) {
        return Kyro::eOk;
    }
    const KyDb::OpenMode mode = value.isVaries() ? KyDb::kForRead : KyDb::kForWrite;
    const KyAxDocLock lock(KyDiHostAccess::workingDatabase());
    KyRxValue hostValue = value;
    KyDiConvertFromDataItem(property, hostValue);
    Resolver resolver(property);
    ClassNameReader names;
    Kyro::ErrorStatus status = Kyro::eOk;
    for (KyDiDynamicObject* item : items) {
        const Opened opened(item, mode, kind);
        KyRxObject* object = opened.helper.object();
        if (opened.helper.getLastError() != Kyro::eOk || object == nullptr) {
            return opened.helper.getLastError();
        }
        if (!passes(filter, object, names)) {
            continue;
        }
        const KyString name = names.read(object);
        const KyRxMember* member = resolver.resolve(object, name, filter);
        status = HostValueAccess::writeHostValue(object, member, hostValue, index, key);
        if (status != Kyro::eOk) {
            return status;
        }
        if (names.read(object).compare(name) != 0) {
            classChanged = true;
        }
    }
    return status;
}

KyRxValueIterator* SelectionCommonValues::newCommonValueIterator(const KyDiItemArray& items,
                                                                 Kind kind,
                                                                 const KyRxPropertyBase* property,
                                                                 const Filter& filter,
                                                                 const IdSet& filtered) {
    auto values = std::make_unique<KyDiValueIterator>();
    Resolver resolver(property);
    ClassNameReader names;
    bool first = true;
    for (KyDiDynamicObject* item : items) {
        const Opened opened(item, KyDb::kForRead, kind);
        KyRxObject* object = opened.helper.object();
        if (opened.helper.getLastError() != Kyro::eOk || object == nullptr) {
            return nullptr;
        }
        if (!passes(filter, object, names)) {
            continue;
        }
        const auto* collection = kyrxCast<KyRxCollectionProperty>([&]() -> const KyRxMember* {
            return resolver.resolve(object, names.read(object), filter);
        }());
        if (collection == nullptr) {
            return nullptr;
        }
        const std::unique_ptr<KyRxValueIterator> own(collection->newValueIterator(object));
        if (own == nullptr) {
            return nullptr;
        }
        if (!first) {
            continue;
        }
        first = false;
        // Values answer for one object only.
        if ((items.length() >= 2 && filter.cls == nullptr) ||
            (filter.cls != nullptr && filtered.size() != 1)) {
            return nullptr;
        }
        for (; !own->done(); own->next()) {
            KyRxValue current;
            if (own->current(current) == Kyro::eOk) {
                KyDiConvertToDataItem(current);
                values->append(current);
            }
        }
    }
    return values.release();
}

Kyro::ErrorStatus KyDiGetCommonValue(const KyDiItemArray& list, const KyRxPropertyBase* property,
                                     KyRxValue& value) {
    if (property == nullptr) {
        return Kyro::eInvalidInput;
    }
    return SelectionCommonValues::getCommonValue(list, Kind::kPlainObjects, property, value, -1,
                                                 nullptr, Filter());
}

bool hasTableSubSelection() {
    KyDiObservableCollection* selected =
        KyDiManager::getKnownCollection(L"KYDI_DATAITEM_SELECTED_ITEMS");
    return selected != nullptr &&
           static_cast<KyDiDataSelectedItemCollectionImp*>(selected->imp())->subEntitySelection() ==
               KyDiDataSelectedItemCollectionImp::kCellsOrComplex;
}
