#include "KyRefObjectRows.h"

#include <memory>

#include "KyRefHeaderRows.h"
#include "KyRefMemberList.h"
#include "KyRefReadContext.h"
#include "KyRefValueForms.h"
#include "KyRefWriteContext.h"
#include "db/KyDbBlockTableRecord.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbDetailViewStyle.h"
#include "db/KyDbDictionary.h"
#include "db/KyDbDictionaryIterator.h"
#include "db/KyDbDictionaryVar.h"
#include "db/KyDbDictionaryWithDefault.h"
#include "db/KyDbLayerStateManager.h"
#include "db/KyDbLayout.h"
#include "db/KyDbMLeaderStyle.h"
#include "db/KyDbMaterial.h"
#include "db/KyDbObjectPointer.h"
#include "db/KyDbPlaceHolder.h"
#include "db/KyDbPlotSettings.h"
#include "db/KyDbRasterImageDef.h"
#include "db/KyDbRenderSettings.h"
#include "db/KyDbScale.h"
#include "db/KyDbSectionViewStyle.h"
#include "db/KyDbStandardContent.h"
#include "db/KyDbSun.h"
#include "db/KyDbTableStyle.h"
#include "db/KyDbUnknownObject.h"
#include "db/KyDbVisualStyle.h"
#include "rx/KyRxClass.h"

namespace {

using Forms = KyRefValueForms;
using Std = KyDbStandardContent;

// ---- Members of each type

const KyRefMemberList kDictionaryMembers{{"entries"}};
// A file that leaves the default out gets the standard one, and is written
// back without it while the default stays that one.
const KyRefMemberList kDictionaryWithDefaultMembers{{"entries"}, {"default", "\"Normal\""}};
const KyRefMemberList kLayoutMembers{{"name"},
                                     {"tabOrder", "0"},
                                     {"block"},
                                     {"plotSettings", "{}"},
                                     {"plotStyleTable", "\"\""},
                                     {"pageSetup", "\"\""},
                                     {"rasterDpi", "0"}};
const KyRefMemberList kPlotSettingsMembers{{"name"}, {"settings", "{}"}};
const KyRefMemberList kMaterialMembers{{"name"}, {"description", "\"\""}};
const KyRefMemberList kVisualStyleMembers{{"name"}, {"kind", "0"}, {"internal", "false"}};
const KyRefMemberList kMLeaderStyleMembers{{"name"}, {"textStyle", "\"Standard\""}};
const KyRefMemberList kTableStyleMembers{{"name"},
                                         {"cellStyles", "[\"Title\", \"Header\", \"Data\"]"}};
const KyRefMemberList kViewStyleMembers{{"name"}};
const KyRefMemberList kScaleMembers{{"name"}, {"paperUnits", "1"}, {"drawingUnits", "1"}};
// The name of a plot style placeholder is its key; a file that gives
// another keeps it as it is.
const KyRefMemberList kPlaceHolderMembers{};
const KyRefMemberList kImageDefMembers{{"path"}, {"size"}};
const KyRefMemberList kRenderSettingsMembers{{"name"}, {"outputSize", "\"640x480\""}};
const KyRefMemberList kSunMembers{{"on", "false"},
                                  {"intensity", "1"},
                                  {"color", "7", false, "rgb book name"},
                                  {"shadowType", "0"}};
const KyRefMemberList kDictionaryVarMembers{{"value", "\"\""}};

// The standard keys of the named objects dictionary, and the type of their
// entries.
struct StandardKey {
    const wchar_t* key;
    const char* entryType;
};
const StandardKey kStandardKeys[] = {
    {L"KYRO_LAYOUT", "LAYOUT"},
    {L"KYRO_PLOTSETTINGS", "PLOTSETTINGS"},
    {L"KYRO_MATERIAL", "MATERIAL"},
    {L"KYRO_VISUALSTYLE", "VISUALSTYLE"},
    {L"KYRO_MLEADERSTYLE", "MLEADERSTYLE"},
    {L"KYRO_TABLESTYLE", "TABLESTYLE"},
    {L"KYRO_SECTIONVIEWSTYLE", "SECTIONVIEWSTYLE"},
    {L"KYRO_DETAILVIEWSTYLE", "DETAILVIEWSTYLE"},
    {L"KYRO_SCALELIST", "SCALE"},
    {L"KYRO_PLOTSTYLENAME", "PLACEHOLDER"},
    {L"KYRO_IMAGE_DICT", "IMAGEDEF"},
    {L"KYRO_POINTCLOUD_EX_DICT", "POINTCLOUDDEF"},
    {L"KYRO_RENDER_SETTINGS", "RENDERSETTINGS"},
    {L"KYRO_SUN", "SUN"},
    {L"KyDbVariableDictionary", "DICTIONARYVAR"},
};

const StandardKey* standardKey(const std::string& key) {
    const KyString wide = kyrefWide(key);
    for (const StandardKey& standard : kStandardKeys) {
        if (wide.compareNoCase(standard.key) == 0) {
            return &standard;
        }
    }
    return nullptr;
}

template <typename T>
KyRxClass* classOf() {
    return T::desc();
}

// A settings object kept as its JSON text.
KyString settingsText(const KyRefJsonNode& node, const char* member) {
    const auto settings = node.optional(member);
    if (!settings) {
        return KyString();
    }
    settings->expectObject();
    return settings->value().empty() ? KyString() : kyrefWide(settings->value().dump());
}

KyRefJson settingsJson(const KyString& text) {
    if (text.isEmpty()) {
        return KyRefJson::object();
    }
    KyRefJson settings = KyRefJson::parse(text.utf8(), nullptr, false);
    return settings.is_discarded() ? KyRefJson::object() : settings;
}

// ---- Dictionaries

void readEntries(KyRefReadContext& context, const KyRefJsonNode& node, KyDbObjectId id,
                 bool inRoot);

KyDbObject* readDictionary(KyRefReadContext&, const KyRefJsonNode& node,
                           const KyRefEntryPlace& place) {
    node.required("entries", "an object of entries").expectObject();
    const bool withDefault =
        place.inRoot && kyrefWide(place.key).compareNoCase(Std::kPlotStyleNameKey) == 0;
    return withDefault ? new KyDbDictionaryWithDefault() : new KyDbDictionary();
}

void fillDictionary(KyRefReadContext& context, const KyRefJsonNode& node, KyDbObjectId id) {
    readEntries(context, node, id, false);
    if (!id.objectClass()->isDerivedFrom(KyDbDictionaryWithDefault::desc())) {
        return;
    }
    const auto defaultKey = node.optional("default");
    if (!defaultKey) {
        return;
    }
    // The key is found in any case, and written back as the file spelled it.
    const KyDbObjectId entry = context.entry(id, *defaultKey, "plot style");
    context.keepSpellings(id, node);
    KyDbObjectPointer<KyDbDictionaryWithDefault> dictionary(id, KyDb::kForWrite);
    KyRefReadContext::check(dictionary->setDefaultId(entry), *defaultKey, "the key of an entry");
}

void writeDictionary(KyRefWriteContext& context, const KyDbObject& object, KyRefJson& out) {
    const auto& dictionary = static_cast<const KyDbDictionary&>(object);
    KyRefJson entries = KyRefJson::object();
    const std::unique_ptr<KyDbDictionaryIterator> it(dictionary.newIterator());
    for (; !it->done(); it->next()) {
        const KyDbObjectId id = it->objectId();
        if (context.isLeftOut(id)) {
            continue;
        }
        KyRefJson entry = KyRefObjectRows::write(context, id);
        if (!entry.is_null()) {
            entries[kyrefUtf8(it->name())] = std::move(entry);
        }
    }
    out["entries"] = std::move(entries);
    if (const auto* withDefault = kyrxCast<KyDbDictionaryWithDefault>(&object)) {
        KyString key;
        if (!withDefault->defaultId().isNull() &&
            dictionary.nameAt(withDefault->defaultId(), key) == Kyro::eOk) {
            out["default"] = kyrefUtf8(key);
        }
    }
}

// ---- Layouts and plot settings

KyDbObject* readLayout(KyRefReadContext& context, const KyRefJsonNode& node,
                       const KyRefEntryPlace&) {
    auto layout = std::make_unique<KyDbLayout>();
    const KyString name = node.text("name");
    layout->setLayoutName(name);
    layout->setPlotSettingsName(name);
    const auto tabOrder = node.optional("tabOrder");
    KyRefReadContext::check(layout->setTabOrder(tabOrder ? tabOrder->asInteger(0, 32767) : 0),
                            tabOrder ? *tabOrder : node, "a tab order of 0 or more");
    const KyRefJsonNode block = node.required("block", "the handle of the layout's block");
    KyRefReadContext::check(layout->setBlockTableRecordId(
                                context.object(block, KyDbBlockTableRecord::desc(), "a block")),
                            block, "the handle of a block");
    layout->setSettings(settingsText(node, "plotSettings"));
    layout->setPlotStyleTable(node.text("plotStyleTable", L""));
    layout->setPageSetupName(node.text("pageSetup", L""));
    if (const auto dpi = node.optional("rasterDpi")) {
        KyRefReadContext::check(
            layout->setRasterDpi(static_cast<short>(dpi->asInteger(0, KyDbLayout::kMaxRasterDpi))),
            *dpi, "0 (none) or a resolution from 100 to 32767 dots per inch");
    }
    return layout.release();
}

void writeLayout(KyRefWriteContext&, const KyDbObject& object, KyRefJson& out) {
    const auto& layout = static_cast<const KyDbLayout&>(object);
    out["name"] = kyrefUtf8(layout.layoutName());
    out["tabOrder"] = layout.tabOrder();
    out["block"] = Forms::handle(KyDbHandle(layout.getBlockTableRecordId().handle()));
    out["plotSettings"] = settingsJson(layout.settings());
    out["plotStyleTable"] = kyrefUtf8(layout.plotStyleTable());
    out["pageSetup"] = kyrefUtf8(layout.pageSetupName());
    out["rasterDpi"] = layout.rasterDpi();
}

KyDbObject* readPlotSettings(KyRefReadContext&, const KyRefJsonNode& node, const KyRefEntryPlace&) {
    auto settings = std::make_unique<KyDbPlotSettings>();
    settings->setPlotSettingsName(node.text("name"));
    settings->setSettings(settingsText(node, "settings"));
    return settings.release();
}

void writePlotSettings(KyRefWriteContext&, const KyDbObject& object, KyRefJson& out) {
    const auto& settings = static_cast<const KyDbPlotSettings&>(object);
    out["name"] = kyrefUtf8(settings.plotSettingsName());
    out["settings"] = settingsJson(settings.settings());
}

// ---- Styles, materials, scales

KyDbObject* readMaterial(KyRefReadContext&, const KyRefJsonNode& node, const KyRefEntryPlace&) {
    auto material = std::make_unique<KyDbMaterial>();
    material->setName(node.text("name"));
    material->setDescription(node.text("description", L""));
    return material.release();
}

void writeMaterial(KyRefWriteContext&, const KyDbObject& object, KyRefJson& out) {
    const auto& material = static_cast<const KyDbMaterial&>(object);
    out["name"] = kyrefUtf8(material.name());
    out["description"] = kyrefUtf8(material.description());
}

KyDbObject* readVisualStyle(KyRefReadContext&, const KyRefJsonNode& node, const KyRefEntryPlace&) {
    auto style = std::make_unique<KyDbVisualStyle>();
    style->setName(node.text("name"));
    style->setType(node.integer("kind", 0, 0, 1000000));
    style->setInternalUseOnly(node.boolean("internal", false));
    return style.release();
}

void writeVisualStyle(KyRefWriteContext&, const KyDbObject& object, KyRefJson& out) {
    const auto& style = static_cast<const KyDbVisualStyle&>(object);
    out["name"] = kyrefUtf8(style.name());
    out["kind"] = style.type();
    out["internal"] = style.isInternalUseOnly();
}

KyDbObject* readMLeaderStyle(KyRefReadContext& context, const KyRefJsonNode& node,
                             const KyRefEntryPlace&) {
    auto style = std::make_unique<KyDbMLeaderStyle>();
    style->setName(node.text("name"));
    KyDbDatabase* db = context.database();
    const auto textStyle = node.optional("textStyle");
    const KyDbObjectId textStyleId =
        textStyle ? context.record(db->textStyleTableId(), *textStyle, "text style")
                  : context.record(db->textStyleTableId(), Std::kStandard, node, "textStyle",
                                   "text style");
    KyRefReadContext::check(style->setTextStyleId(textStyleId), textStyle ? *textStyle : node,
                            "a text style");
    return style.release();
}

void writeMLeaderStyle(KyRefWriteContext& context, const KyDbObject& object, KyRefJson& out) {
    const auto& style = static_cast<const KyDbMLeaderStyle&>(object);
    out["name"] = kyrefUtf8(style.name());
    out["textStyle"] = context.recordName(style.textStyleId());
}

KyDbObject* readTableStyle(KyRefReadContext&, const KyRefJsonNode& node, const KyRefEntryPlace&) {
    auto style = std::make_unique<KyDbTableStyle>();
    style->setName(node.text("name"));
    if (const auto cellStyles = node.optional("cellStyles")) {
        cellStyles->expectArray();
        KyStringArray names;
        for (std::size_t i = 0; i < cellStyles->size(); ++i) {
            names.append(cellStyles->item(i).asText());
        }
        KyRefReadContext::check(style->setCellStyles(names), *cellStyles, "cell style names");
    }
    return style.release();
}

void writeTableStyle(KyRefWriteContext&, const KyDbObject& object, KyRefJson& out) {
    const auto& style = static_cast<const KyDbTableStyle&>(object);
    out["name"] = kyrefUtf8(style.name());
    KyRefJson names = KyRefJson::array();
    for (int i = 0; i < style.cellStyles().length(); ++i) {
        names.push_back(kyrefUtf8(style.cellStyles()[i]));
    }
    out["cellStyles"] = std::move(names);
}

template <typename T>
KyDbObject* readViewStyle(KyRefReadContext&, const KyRefJsonNode& node, const KyRefEntryPlace&) {
    auto style = std::make_unique<T>();
    style->setName(node.text("name"));
    return style.release();
}

void writeViewStyle(KyRefWriteContext&, const KyDbObject& object, KyRefJson& out) {
    out["name"] = kyrefUtf8(static_cast<const KyDbModelDocViewStyle&>(object).name());
}

KyDbObject* readScale(KyRefReadContext&, const KyRefJsonNode& node, const KyRefEntryPlace&) {
    auto scale = std::make_unique<KyDbScale>();
    scale->setScaleName(node.text("name"));
    if (const auto paper = node.optional("paperUnits")) {
        KyRefReadContext::check(scale->setPaperUnits(paper->asNumber()), *paper,
                                "a positive number");
    }
    if (const auto drawing = node.optional("drawingUnits")) {
        KyRefReadContext::check(scale->setDrawingUnits(drawing->asNumber()), *drawing,
                                "a positive number");
    }
    return scale.release();
}

void writeScale(KyRefWriteContext&, const KyDbObject& object, KyRefJson& out) {
    const auto& scale = static_cast<const KyDbScale&>(object);
    out["name"] = kyrefUtf8(scale.scaleName());
    out["paperUnits"] = scale.paperUnits();
    out["drawingUnits"] = scale.drawingUnits();
}

KyDbObject* readPlaceHolder(KyRefReadContext&, const KyRefJsonNode& node, const KyRefEntryPlace&) {
    node.required("name", "the name of the plot style").asString();
    return new KyDbPlaceHolder();
}

void writePlaceHolder(KyRefWriteContext& context, const KyDbObject& object, KyRefJson& out) {
    // The file's own "name" comes back with the members kept for it.
    const KyRefDrawingExtras::Form* form = context.form(object.objectId());
    if (form == nullptr || !form->unknown || !form->unknown->contains("name")) {
        out["name"] = context.entryKey(object.objectId());
    }
}

// ---- Images, render presets, suns, variables

KyDbObject* readImageDef(KyRefReadContext&, const KyRefJsonNode& node, const KyRefEntryPlace&) {
    auto definition = std::make_unique<KyDbRasterImageDef>();
    definition->setSourceFileName(node.text("path"));
    const KyRefJsonNode size = node.required("size", "[width, height] in pixels");
    size.expectArray();
    if (size.size() != 2) {
        size.fail("expected [width, height] in pixels");
    }
    KyRefReadContext::check(definition->setWidth(size.item(0).asNumber()), size.item(0),
                            "a width of 0 or more");
    KyRefReadContext::check(definition->setHeight(size.item(1).asNumber()), size.item(1),
                            "a height of 0 or more");
    return definition.release();
}

void writeImageDef(KyRefWriteContext&, const KyDbObject& object, KyRefJson& out) {
    const auto& definition = static_cast<const KyDbRasterImageDef&>(object);
    out["path"] = kyrefUtf8(definition.sourceFileName());
    out["size"] = KyRefJson::array({definition.width(), definition.height()});
}

KyDbObject* readRenderSettings(KyRefReadContext&, const KyRefJsonNode& node,
                               const KyRefEntryPlace&) {
    auto settings = std::make_unique<KyDbRenderSettings>();
    settings->setName(node.text("name"));
    settings->setOutputSize(node.text("outputSize", L"640x480"));
    return settings.release();
}

void writeRenderSettings(KyRefWriteContext&, const KyDbObject& object, KyRefJson& out) {
    const auto& settings = static_cast<const KyDbRenderSettings&>(object);
    out["name"] = kyrefUtf8(settings.name());
    out["outputSize"] = kyrefUtf8(settings.outputSize());
}

KyDbObject* readSun(KyRefReadContext&, const KyRefJsonNode& node, const KyRefEntryPlace&) {
    auto sun = std::make_unique<KyDbSun>();
    sun->setOn(node.boolean("on", false));
    if (const auto intensity = node.optional("intensity")) {
        KyRefReadContext::check(sun->setIntensity(intensity->asNumber()), *intensity,
                                "an intensity of 0 or more");
    }
    KyCmColor color;
    color.setColorIndex(KyCmColor::kACIWhite);
    if (const auto given = node.optional("color")) {
        color = Forms::color(*given);
    }
    sun->setSunColor(color);
    sun->setShadowType(node.integer("shadowType", 0, 0, 1000000));
    return sun.release();
}

void writeSun(KyRefWriteContext&, const KyDbObject& object, KyRefJson& out) {
    const auto& sun = static_cast<const KyDbSun&>(object);
    out["on"] = sun.isOn();
    out["intensity"] = sun.intensity();
    out["color"] = Forms::color(sun.sunColor());
    out["shadowType"] = sun.shadowType();
}

// The header variable that an entry of the variable dictionary stands for;
// null for any other entry.
const KyRefHeaderRow* dictionaryVariable(KyDbDatabase* db, KyDbObjectId ownerId,
                                         const std::string& key) {
    if (ownerId.isNull() || ownerId != db->variableDictionaryId()) {
        return nullptr;
    }
    const KyRefHeaderRow* row = KyRefHeaderRows::find(key);
    return row != nullptr && row->inVariableDictionary ? row : nullptr;
}

KyDbObject* readDictionaryVar(KyRefReadContext& context, const KyRefJsonNode& node,
                              const KyRefEntryPlace& place) {
    auto variable = std::make_unique<KyDbDictionaryVar>();
    const KyString value = node.text("value", L"");
    variable->setValue(value);
    const KyRefHeaderRow* row =
        place.inVariableDictionary ? KyRefHeaderRows::find(place.key) : nullptr;
    if (row != nullptr && row->inVariableDictionary) {
        // A variable of the drawing names its current style: the database
        // always has one, so a file that names none could not be given back.
        const std::string expected = std::string("the name of a ") + row->what;
        const auto valueNode = node.required("value", expected.c_str());
        if (value.isEmpty()) {
            valueNode.fail("expected " + expected + ", found \"\"");
        }
        context.deferVariable({row->name, valueNode.asString(), valueNode.path()});
    }
    return variable.release();
}

void writeDictionaryVar(KyRefWriteContext& context, const KyDbObject& object, KyRefJson& out) {
    const auto& variable = static_cast<const KyDbDictionaryVar&>(object);
    KyDbDatabase* db = context.database();
    const std::string& key = context.entryKey(object.objectId());
    if (const KyRefHeaderRow* row = dictionaryVariable(db, object.ownerId(), key)) {
        // The database keeps the current style in its header.
        KyRxValue value;
        const KyDbObjectId* id = nullptr;
        if (db->getHeaderVar(kyrefWide(row->name), value) == Kyro::eOk &&
            (id = valueCast<KyDbObjectId>(&value)) != nullptr && !id->isNull()) {
            out["value"] = context.entryKey(*id);
            return;
        }
    }
    out["value"] = kyrefUtf8(variable.value());
}

const KyRefObjectRow kRows[] = {
    {"DICTIONARY", &classOf<KyDbDictionary>, &kDictionaryMembers, &readDictionary, &fillDictionary,
     &writeDictionary},
    {"DICTIONARY", &classOf<KyDbDictionaryWithDefault>, &kDictionaryWithDefaultMembers,
     &readDictionary, &fillDictionary, &writeDictionary},
    {"LAYOUT", &classOf<KyDbLayout>, &kLayoutMembers, &readLayout, nullptr, &writeLayout},
    {"PLOTSETTINGS", &classOf<KyDbPlotSettings>, &kPlotSettingsMembers, &readPlotSettings, nullptr,
     &writePlotSettings},
    {"MATERIAL", &classOf<KyDbMaterial>, &kMaterialMembers, &readMaterial, nullptr, &writeMaterial},
    {"VISUALSTYLE", &classOf<KyDbVisualStyle>, &kVisualStyleMembers, &readVisualStyle, nullptr,
     &writeVisualStyle},
    {"MLEADERSTYLE", &classOf<KyDbMLeaderStyle>, &kMLeaderStyleMembers, &readMLeaderStyle, nullptr,
     &writeMLeaderStyle},
    {"TABLESTYLE", &classOf<KyDbTableStyle>, &kTableStyleMembers, &readTableStyle, nullptr,
     &writeTableStyle},
    {"SECTIONVIEWSTYLE", &classOf<KyDbSectionViewStyle>, &kViewStyleMembers,
     &readViewStyle<KyDbSectionViewStyle>, nullptr, &writeViewStyle},
    {"DETAILVIEWSTYLE", &classOf<KyDbDetailViewStyle>, &kViewStyleMembers,
     &readViewStyle<KyDbDetailViewStyle>, nullptr, &writeViewStyle},
    {"SCALE", &classOf<KyDbScale>, &kScaleMembers, &readScale, nullptr, &writeScale},
    {"PLACEHOLDER", &classOf<KyDbPlaceHolder>, &kPlaceHolderMembers, &readPlaceHolder, nullptr,
     &writePlaceHolder},
    {"IMAGEDEF", &classOf<KyDbRasterImageDef>, &kImageDefMembers, &readImageDef, nullptr,
     &writeImageDef},
    {"RENDERSETTINGS", &classOf<KyDbRenderSettings>, &kRenderSettingsMembers, &readRenderSettings,
     nullptr, &writeRenderSettings},
    {"SUN", &classOf<KyDbSun>, &kSunMembers, &readSun, nullptr, &writeSun},
    {"DICTIONARYVAR", &classOf<KyDbDictionaryVar>, &kDictionaryVarMembers, &readDictionaryVar,
     nullptr, &writeDictionaryVar},
};

const KyRefObjectRow* ofClass(const KyRxClass* objectClass) {
    for (const KyRefObjectRow& row : kRows) {
        if (row.objectClass() == objectClass) {
            return &row;
        }
    }
    return nullptr;
}

// An object of a type without a row, kept whole: its members other than
// "type" and "handle" as JSON text. A type that the file lists with members
// of its own (POINTCLOUDDEF) has them checked.
KyDbObject* readUnknown(const KyRefJsonNode& node, const std::string& type) {
    if (type == "POINTCLOUDDEF") {
        node.required("path", "the path of the point cloud").asString();
    }
    KyRefJson data = KyRefJson::object();
    for (auto it = node.value().begin(); it != node.value().end(); ++it) {
        if (it.key() != "type" && it.key() != "handle") {
            data[it.key()] = *it;
        }
    }
    auto object = std::make_unique<KyDbUnknownObject>();
    object->setTypeName(kyrefWide(type));
    object->setData(kyrefWide(data.dump()));
    return object.release();
}

void readEntries(KyRefReadContext& context, const KyRefJsonNode& node, KyDbObjectId id,
                 bool inRoot) {
    const KyRefJsonNode entries = node.required("entries", "an object of entries");
    entries.expectObject();
    const bool inVariables = id == context.database()->variableDictionaryId();
    KyDbObjectPointer<KyDbDictionary> dictionary(id, KyDb::kForWrite);
    for (auto it = entries.value().begin(); it != entries.value().end(); ++it) {
        const std::string& key = it.key();
        const KyRefJsonNode entry(*it, entries, key);
        if (inRoot && kyrefWide(key).compareNoCase(KyDbLayerStateManager::kDictionaryKey) == 0) {
            entry.fail(
                "expected the layer states in the top-level member \"layerStates\", "
                "found an entry under " +
                key + ", the key they take in the drawing");
        }
        entry.expectObject();
        const KyRefJsonNode typeNode = entry.required("type", "the type of the object");
        const std::string type = typeNode.asString();
        if (inRoot) {
            if (const StandardKey* standard = standardKey(key)) {
                if (type != "DICTIONARY") {
                    typeNode.fail("expected \"DICTIONARY\" under the standard key " + key +
                                  ", found \"" + type + "\"");
                }
                const KyRefJsonNode standardEntries =
                    entry.required("entries", "an object of entries");
                standardEntries.expectObject();
                for (auto e = standardEntries.value().begin(); e != standardEntries.value().end();
                     ++e) {
                    const KyRefJsonNode item(*e, standardEntries, e.key());
                    item.expectObject();
                    const KyRefJsonNode itemType = item.required("type", "the type of the object");
                    if (itemType.asString() != standard->entryType) {
                        itemType.fail(std::string("expected \"") + standard->entryType + "\" in " +
                                      key + ", found \"" + itemType.asString() + "\"");
                    }
                }
            }
        }
        const KyRefObjectRow* row = KyRefObjectRows::ofType(type);
        const KyRefEntryPlace place{key, inRoot, inVariables};
        std::unique_ptr<KyDbObject> object(row != nullptr ? row->read(context, entry, place)
                                                          : readUnknown(entry, type));
        const KyDbObjectId entryId =
            context.addEntry(dictionary.object(), key, std::move(object), entry);
        if (row != nullptr) {
            // The members of the object as the writer will list them: a
            // dictionary may have become one with a default.
            const KyRefObjectRow* written = ofClass(entryId.objectClass());
            context.keepForm(entryId, entry, *(written != nullptr ? written : row)->members,
                             {"type", "handle"});
            if (row->fill != nullptr) {
                row->fill(context, entry, entryId);
            }
        }
    }
}

}  // namespace

std::span<const KyRefObjectRow> KyRefObjectRows::rows() {
    return kRows;
}

const KyRefObjectRow* KyRefObjectRows::ofType(const std::string& type) {
    for (const KyRefObjectRow& row : kRows) {
        if (type == row.type) {
            return &row;
        }
    }
    return nullptr;
}

void KyRefObjectRows::readRoot(KyRefReadContext& context, const KyRefJsonNode& node) {
    node.expectObject();
    KyDbDatabase* db = context.database();
    const KyRefJsonNode type = node.required("type", "\"DICTIONARY\"");
    if (type.asString() != "DICTIONARY") {
        type.fail("expected \"DICTIONARY\", found \"" + type.asString() + "\"");
    }
    const KyRefJsonNode handle = node.required("handle", "a handle");
    const KyDbObjectId root = db->namedObjectsDictionaryId();
    if (db->setObjectHandle(root, KyRefValueForms::handle(handle)) != Kyro::eOk) {
        handle.fail("the handle \"" + handle.asString() +
                    "\" is taken by another object; expected a handle of its own");
    }
    readEntries(context, node, root, true);
    context.keepForm(root, node, kDictionaryMembers, {"type", "handle"});
}

KyRefJson KyRefObjectRows::write(KyRefWriteContext& context, KyDbObjectId id) {
    KyDbObjectPointer<KyDbObject> object(id, KyDb::kForRead);
    if (object.openStatus() != Kyro::eOk) {
        return KyRefJson();
    }
    KyRefJson out = KyRefJson::object();
    if (const auto* unknown = kyrxCast<KyDbUnknownObject>(object.object())) {
        out["type"] = kyrefUtf8(unknown->typeName());
        out["handle"] = Forms::handle(KyDbHandle(id.handle()));
        KyRefJson data = KyRefJson::parse(unknown->data().utf8(), nullptr, false);
        if (data.is_object()) {
            KyRefMemberList::mergeUnknown(out, data);
        }
        return out;
    }
    const KyRefObjectRow* row = ofClass(object->isA());
    if (row == nullptr) {
        return KyRefJson();
    }
    out["type"] = row->type;
    out["handle"] = Forms::handle(KyDbHandle(id.handle()));
    row->write(context, *object.object(), out);
    context.shape(out, id, *row->members);
    return out;
}

KyRefJson KyRefObjectRows::writeRoot(KyRefWriteContext& context) {
    return write(context, context.database()->namedObjectsDictionaryId());
}
