#include "manager/NameConverters.h"

#include <cwchar>

#include "base/KyString.h"
#include "db/KyDbLinetypeTableRecord.h"
#include "db/KyDbMaterial.h"
#include "db/KyDbReservedStrings.h"
#include "db/KyDbVisualStyle.h"
#include "manager/KyDiManagerState.h"
#include "rx/KyRxValue.h"

namespace {

using Kind = KyDb::ReservedStringEnumType;

// Each list ends with the count of kinds.
// Shaded stands twice, as the list has always had it; the second changes
// nothing.
const Kind kVisualStyleKinds[] = {
    KyDb::kVS2DWireframe,     KyDb::kVSHidden,       KyDb::kVSWireframe, KyDb::kVSConceptual,
    KyDb::kVSRealistic,       KyDb::kVSShadesOfGray, KyDb::kVSSketchy,   KyDb::kVSXRay,
    KyDb::kVSShadedWithEdges, KyDb::kVSShaded,       KyDb::kVSShaded,    KyDb::kReservedStringCount,
};
const Kind kLinetypeKinds[] = {KyDb::kByLayer, KyDb::kByBlock, KyDb::kContinuous,
                               KyDb::kReservedStringCount};
const Kind kMaterialKinds[] = {KyDb::kByLayer, KyDb::kByBlock, KyDb::kGlobal,
                               KyDb::kReservedStringCount};

const wchar_t* textOf(const KyRxValue* value) {
    if (const KyString* text = valueCast<KyString>(value)) {
        return text->kwszPtr();
    }
    if (const wchar_t* const* text = valueCast<const wchar_t*>(value)) {
        return *text;
    }
    return nullptr;
}

// The text of `kinds` whose other form equals `text`, or null.
const wchar_t* translate(const wchar_t* text, const Kind* kinds, bool toLocal) {
    for (; *kinds != KyDb::kReservedStringCount; ++kinds) {
        const wchar_t* other = kydbGetReservedString(*kinds, !toLocal);
        if (other != nullptr && std::wcscmp(text, other) == 0) {
            return kydbGetReservedString(*kinds, toLocal);
        }
    }
    return nullptr;
}

int convertNames(KyRxValue* value, bool toLocal, const Kind* kinds) {
    const wchar_t* text = textOf(value);
    if (text == nullptr || *text == L'\0') {
        return Kyro::eInvalidInput;
    }
    if (const wchar_t* translated = translate(text, kinds, toLocal)) {
        *value = KyRxValue(KyString(translated));
    }
    return Kyro::eOk;
}

int convertLinetypeName(KyRxValue* value, bool toLocal) {
    return convertNames(value, toLocal, kLinetypeKinds);
}

int convertMaterialName(KyRxValue* value, bool toLocal) {
    return convertNames(value, toLocal, kMaterialKinds);
}

const NameConverterRow kRows[] = {
    {L"KYRO_VISUALSTYLE", L"Name", &NameConverters::convertVisualStyleName},
    {L"LINETYPE", L"Name", &convertLinetypeName},
    {L"KYRO_MATERIAL", L"Name", &convertMaterialName},
    {nullptr, nullptr, nullptr},
};

}  // namespace

const NameConverterRow* NameConverters::rows() {
    return kRows;
}

const KyDb::ReservedStringEnumType* NameConverters::visualStyleKinds() {
    return kVisualStyleKinds;
}

int NameConverters::convertVisualStyleName(KyRxValue* value, bool toLocal) {
    const wchar_t* text = textOf(value);
    KyString name(text != nullptr ? text : L"");
    if (const wchar_t* translated = translate(name.kwszPtr(), kVisualStyleKinds, toLocal)) {
        name = translated;
    }
    *value = KyRxValue(name);
    return Kyro::eOk;
}

void NameConverters::install() {
    auto& converters = kydiManagerState().nameConverters;
    for (const NameConverterRow* row = kRows; row->collectionName != nullptr; ++row) {
        const KyString name(row->collectionName);
        if (name.compare(L"KYRO_VISUALSTYLE") == 0) {
            converters[KyDbVisualStyle::desc()] = row;
        } else if (name.compare(L"LINETYPE") == 0) {
            converters[KyDbLinetypeTableRecord::desc()] = row;
        } else if (name.compare(L"KYRO_MATERIAL") == 0) {
            converters[KyDbMaterial::desc()] = row;
        }
    }
}

void NameConverters::toLocal(const KyRxClass* cls, const wchar_t* propertyName, KyRxValue& value) {
    if (convertsOn(cls, propertyName)) {
        kydiManagerState().nameConverters.find(cls)->second->convert(&value, true);
    }
}

bool NameConverters::convertsOn(const KyRxClass* cls, const wchar_t* propertyName) {
    const auto& converters = kydiManagerState().nameConverters;
    const auto found = converters.find(cls);
    return found != converters.end() && propertyName != nullptr &&
           KyString(propertyName).compareNoCase(found->second->propertyName) == 0;
}
