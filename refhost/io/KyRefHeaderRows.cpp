#include "KyRefHeaderRows.h"

#include <limits>
#include <string>

#include "KyRefDrawingError.h"
#include "KyRefReadContext.h"
#include "KyRefValueForms.h"
#include "KyRefWriteContext.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbDictionary.h"
#include "db/KyDbObjectPointer.h"
#include "ge/KyGePoint3d.h"

namespace {

using Form = KyRefHeaderRow::Form;
using Forms = KyRefValueForms;

const KyRefHeaderRow kRows[] = {
    {"CLAYER", Form::kRecord, &KyDbDatabase::layerTableId, "layer", false, false},
    {"CELTYPE", Form::kRecord, &KyDbDatabase::linetypeTableId, "linetype", false, false},
    {"TEXTSTYLE", Form::kRecord, &KyDbDatabase::textStyleTableId, "text style", false, false},
    {"DIMSTYLE", Form::kRecord, &KyDbDatabase::dimStyleTableId, "dimension style", false, false},
    {"UCSBASE", Form::kRecord, &KyDbDatabase::UCSTableId, "user coordinate system", true, false},
    {"CMATERIAL", Form::kEntry, &KyDbDatabase::materialDictionaryId, "material", false, false},
    {"CTABLESTYLE", Form::kEntry, &KyDbDatabase::tableStyleDictionaryId, "table style", false,
     true},
    {"CMLEADERSTYLE", Form::kEntry, &KyDbDatabase::mleaderStyleDictionaryId, "multileader style",
     false, true},
    {"CVIEWDETAILSTYLE", Form::kEntry, &KyDbDatabase::detailViewStyleDictionaryId,
     "detail view style", false, true},
    {"CVIEWSECTIONSTYLE", Form::kEntry, &KyDbDatabase::sectionViewStyleDictionaryId,
     "section view style", false, true},
    {"CECOLOR", Form::kColor, nullptr, nullptr, false, false},
    {"CETRANSPARENCY", Form::kTransparency, nullptr, nullptr, false, false},
    {"CELWEIGHT", Form::kLineWeight, nullptr, nullptr, false, false},
    {"CSHADOW", Form::kShadow, nullptr, nullptr, false, false},
    {"TILEMODE", Form::kFlag, nullptr, nullptr, false, false},
    {"PSTYLEMODE", Form::kFlag, nullptr, nullptr, false, false},
};

bool sameNameNoCase(std::string_view a, std::string_view b) {
    return kyrefWide(a).compareNoCase(kyrefWide(b)) == 0;
}

// ---- Values of the rows

KyRxValue rowValue(KyRefReadContext& context, const KyRefHeaderRow& row,
                   const KyRefJsonNode& node) {
    KyDbDatabase* db = context.database();
    switch (row.form) {
        case Form::kRecord:
            if (row.noneAllowed && node.asString().empty()) {
                return KyRxValue(KyDbObjectId());
            }
            return KyRxValue(context.record((db->*row.container)(), node, row.what));
        case Form::kEntry:
            return KyRxValue(context.entry((db->*row.container)(), node, row.what));
        case Form::kColor:
            return KyRxValue(Forms::color(node));
        case Form::kTransparency:
            return KyRxValue(Forms::transparency(node));
        case Form::kLineWeight:
            return KyRxValue(Forms::lineWeight(node));
        case Form::kShadow:
            return KyRxValue(static_cast<KyDb::ShadowFlags>(node.asInteger(0, 3)));
        case Form::kFlag:
            if (node.value().is_boolean()) {
                return KyRxValue(node.asBool());
            }
            return KyRxValue(node.asInteger(0, 1) != 0);
    }
    return KyRxValue();
}

KyRefJson rowJson(KyRefWriteContext& context, const KyRefHeaderRow& row, const KyRxValue& value) {
    switch (row.form) {
        case Form::kRecord:
        case Form::kEntry:
            if (const auto* id = valueCast<KyDbObjectId>(&value)) {
                return row.form == Form::kRecord ? context.recordName(*id) : context.entryKey(*id);
            }
            break;
        case Form::kColor:
            if (const auto* color = valueCast<KyCmColor>(&value)) {
                return Forms::color(*color);
            }
            break;
        case Form::kTransparency:
            if (const auto* transparency = valueCast<KyCmTransparency>(&value)) {
                return Forms::transparency(*transparency);
            }
            break;
        case Form::kLineWeight:
            if (const auto* weight = valueCast<KyDb::LineWeight>(&value)) {
                return static_cast<int>(*weight);
            }
            break;
        case Form::kShadow:
            if (const auto* shadow = valueCast<KyDb::ShadowFlags>(&value)) {
                return static_cast<int>(*shadow);
            }
            break;
        case Form::kFlag:
            if (const auto* flag = valueCast<bool>(&value)) {
                return *flag ? 1 : 0;
            }
            break;
    }
    return KyRefJson();
}

// ---- Plain values

// A plain variable as a value of the database; false for JSON that the
// database can't hold.
bool plainValue(const KyRefJson& json, KyRxValue& value) {
    if (json.is_boolean()) {
        value = KyRxValue(json.get<bool>());
    } else if (json.is_number_integer()) {
        if (json < std::numeric_limits<int>::min() || json > std::numeric_limits<int>::max()) {
            return false;
        }
        value = KyRxValue(json.get<int>());
    } else if (json.is_number_float()) {
        value = KyRxValue(json.get<double>());
    } else if (json.is_string()) {
        value = KyRxValue(kyrefWide(json.get_ref<const std::string&>()));
    } else if (json.is_array() && (json.size() == 2 || json.size() == 3)) {
        double coordinates[3] = {};
        for (std::size_t i = 0; i < json.size(); ++i) {
            if (!json[i].is_number()) {
                return false;
            }
            coordinates[i] = json[i].get<double>();
        }
        value = KyRxValue(KyGePoint3d(coordinates[0], coordinates[1], coordinates[2]));
    } else {
        return false;
    }
    return true;
}

KyRefJson plainJson(const KyRxValue& value) {
    if (const auto* flag = valueCast<bool>(&value)) {
        return *flag;
    }
    if (const auto* small = valueCast<short>(&value)) {
        return *small;
    }
    if (const auto* number = valueCast<int>(&value)) {
        return *number;
    }
    if (const auto* unsignedNumber = valueCast<unsigned int>(&value)) {
        return *unsignedNumber;
    }
    if (const auto* real = valueCast<double>(&value)) {
        return *real;
    }
    if (const auto* text = valueCast<KyString>(&value)) {
        return kyrefUtf8(*text);
    }
    if (const auto* point = valueCast<KyGePoint3d>(&value)) {
        return Forms::point(*point);
    }
    if (const auto* id = valueCast<KyDbObjectId>(&value)) {
        return Forms::handle(KyDbHandle(id->handle()));
    }
    if (const auto* color = valueCast<KyCmColor>(&value)) {
        return Forms::color(*color);
    }
    if (const auto* transparency = valueCast<KyCmTransparency>(&value)) {
        return Forms::transparency(*transparency);
    }
    if (const auto* weight = valueCast<KyDb::LineWeight>(&value)) {
        return static_cast<int>(*weight);
    }
    return kyrefUtf8(value.text());
}

// True when the JSON a file had for a variable means the value now written:
// names in any case, switches as 1 and true alike, numbers by value, points
// with a missing third coordinate taken as 0.
bool sameValue(const KyRefHeaderRow* row, const KyRefJson& original, const KyRefJson& current) {
    if (row != nullptr && (row->form == Form::kRecord || row->form == Form::kEntry)) {
        return original.is_string() && current.is_string() &&
               sameNameNoCase(original.get_ref<const std::string&>(),
                              current.get_ref<const std::string&>());
    }
    if (row != nullptr && row->form == Form::kFlag) {
        const bool before = original.is_boolean()  ? original.get<bool>()
                            : original.is_number() ? original.get<double>() != 0.0
                                                   : false;
        return current.is_number() && before == (current.get<double>() != 0.0);
    }
    if (original.is_array() && current.is_array() && original.size() <= 3 && current.size() <= 3 &&
        original.size() >= 2 && current.size() >= 2) {
        for (std::size_t i = 0; i < 3; ++i) {
            const KyRefJson zero = 0.0;
            const KyRefJson& a = i < original.size() ? original[i] : zero;
            const KyRefJson& b = i < current.size() ? current[i] : zero;
            if (!(a == b)) {
                return false;
            }
        }
        return true;
    }
    return original == current;
}

// The member of `object` named `name` in any case; end() when none.
KyRefJson::const_iterator findNoCase(const KyRefJson& object, std::string_view name) {
    for (auto it = object.begin(); it != object.end(); ++it) {
        if (sameNameNoCase(it.key(), name)) {
            return it;
        }
    }
    return object.end();
}

// The JSON of the variable `name` of the database; null when it has none.
KyRefJson variableJson(KyRefWriteContext& context, const std::string& name) {
    KyRxValue value;
    if (context.database()->getHeaderVar(kyrefWide(name), value) != Kyro::eOk) {
        return KyRefJson();
    }
    const KyRefHeaderRow* row = KyRefHeaderRows::find(name);
    KyRefJson json = row != nullptr ? rowJson(context, *row, value) : KyRefJson();
    return json.is_null() ? plainJson(value) : json;
}

// True when the variable dictionary holds an entry for the variable of `row`
// that this save writes: the variable is written there, not in the header.
bool writtenInVariableDictionary(KyRefWriteContext& context, const KyRefHeaderRow* row) {
    if (row == nullptr || !row->inVariableDictionary) {
        return false;
    }
    KyDbObjectPointer<KyDbDictionary> variables(context.database()->variableDictionaryId(),
                                                KyDb::kForRead);
    KyDbObjectId entry;
    return variables.openStatus() == Kyro::eOk &&
           variables->getAt(kyrefWide(row->name), entry) == Kyro::eOk && !context.isLeftOut(entry);
}

}  // namespace

std::span<const KyRefHeaderRow> KyRefHeaderRows::rows() {
    return kRows;
}

const KyRefHeaderRow* KyRefHeaderRows::find(std::string_view name) {
    for (const KyRefHeaderRow& row : kRows) {
        if (sameNameNoCase(row.name, name)) {
            return &row;
        }
    }
    return nullptr;
}

void KyRefHeaderRows::read(KyRefReadContext& context, const KyRefJsonNode& node) {
    node.expectObject();
    KyDbDatabase* db = context.database();
    KyRefDrawingExtras& extras = context.extras();
    for (auto it = node.value().begin(); it != node.value().end(); ++it) {
        const KyRefJsonNode member(*it, node, it.key());
        extras.headerAsRead()[it.key()] = *it;
        const KyString name = kyrefWide(it.key());
        if (const KyRefHeaderRow* row = find(it.key())) {
            const KyRxValue value = rowValue(context, *row, member);
            KyRefReadContext::check(db->setHeaderVar(kyrefWide(row->name), value), member,
                                    "a value the variable takes");
            continue;
        }
        KyRxValue value;
        if (name.isEmpty() || !plainValue(*it, value)) {
            extras.headerKept()[it.key()] = *it;
            continue;
        }
        KyRefReadContext::check(db->setHeaderVar(name, value), member, "a value");
    }
}

void KyRefHeaderRows::readDeferred(KyRefReadContext& context) {
    KyDbDatabase* db = context.database();
    for (const KyRefReadContext::DeferredVariable& variable : context.deferredVariables()) {
        const KyRefHeaderRow* row = find(variable.name);
        const KyDbObjectId container = (db->*row->container)();
        KyDbObjectId id;
        KyDbObjectPointer<KyDbDictionary> dictionary(container, KyDb::kForRead);
        if (dictionary.openStatus() != Kyro::eOk ||
            dictionary->getAt(kyrefWide(variable.value), id) != Kyro::eOk) {
            throw KyRefDrawingError(variable.path, std::string("expected the name of a ") +
                                                       row->what + ", found \"" + variable.value +
                                                       "\", which the drawing does not have");
        }
        dictionary.close();
        if (db->setHeaderVar(kyrefWide(row->name), KyRxValue(id)) != Kyro::eOk) {
            throw KyRefDrawingError(variable.path,
                                    std::string("expected the name of a ") + row->what);
        }
    }
}

void KyRefHeaderRows::noteFilled(KyRefReadContext& context) {
    KyDbDatabase* db = context.database();
    KyRefDrawingExtras& extras = context.extras();
    KyRefWriteContext writing(db, &extras);
    const KyStringArray names = db->headerVarNames();
    for (int i = 0; i < names.length(); ++i) {
        const std::string name = kyrefUtf8(names[i]);
        if (findNoCase(extras.headerAsRead(), name) == extras.headerAsRead().end()) {
            extras.headerFilled()[name] = variableJson(writing, name);
        }
    }
}

KyRefJson KyRefHeaderRows::write(KyRefWriteContext& context) {
    KyRefJson out = KyRefJson::object();
    const KyRefDrawingExtras* extras = context.extras();
    static const KyRefJson kNone = KyRefJson::object();
    const KyRefJson& asRead = extras != nullptr ? extras->headerAsRead() : kNone;
    const KyRefJson& filled = extras != nullptr ? extras->headerFilled() : kNone;
    const KyRefJson& kept = extras != nullptr ? extras->headerKept() : kNone;
    // The variables of the file first, in its order and spelling.
    for (auto it = asRead.begin(); it != asRead.end(); ++it) {
        if (kept.contains(it.key())) {
            out[it.key()] = kept[it.key()];
            continue;
        }
        const KyRefJson current = variableJson(context, it.key());
        if (current.is_null()) {
            continue;
        }
        out[it.key()] = sameValue(find(it.key()), *it, current) ? *it : current;
    }
    // Then those the file did not have, unless the reader filled them and
    // they still hold the value it gave.
    const KyStringArray names = context.database()->headerVarNames();
    for (int i = 0; i < names.length(); ++i) {
        const std::string name = kyrefUtf8(names[i]);
        if (findNoCase(asRead, name) != asRead.end()) {
            continue;
        }
        if (writtenInVariableDictionary(context, find(name))) {
            continue;
        }
        const KyRefJson current = variableJson(context, name);
        const auto wasFilled = findNoCase(filled, name);
        if (wasFilled != filled.end() && *wasFilled == current) {
            continue;
        }
        out[name] = current;
    }
    return out;
}
