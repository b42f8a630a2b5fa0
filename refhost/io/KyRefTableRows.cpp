#include "KyRefTableRows.h"

#include <algorithm>
#include <iterator>
#include <vector>

#include "KyRefMemberList.h"
#include "KyRefReadContext.h"
#include "KyRefValueForms.h"
#include "KyRefWriteContext.h"
#include "db/KyDbBlockTableRecord.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbDimStyleTableRecord.h"
#include "db/KyDbLayerTableRecord.h"
#include "db/KyDbLinetypeTableRecord.h"
#include "db/KyDbObjectPointer.h"
#include "db/KyDbStandardContent.h"
#include "db/KyDbSun.h"
#include "db/KyDbTextStyleTableRecord.h"
#include "db/KyDbUCSTableRecord.h"
#include "db/KyDbViewTableRecord.h"
#include "db/KyDbViewport.h"
#include "db/KyDbViewportTableRecord.h"
#include "ge/KyGePoint3d.h"

namespace {

using Forms = KyRefValueForms;
using Std = KyDbStandardContent;

constexpr const char* kColorMembers = "rgb book name";

// ---- Members of each table's records

const KyRefMemberList kLinetypeMembers{
    {"name"},
    {"description", "\"\""},
    {"pattern", "[]"},
};
const KyRefMemberList kLayerMembers{
    {"name"},
    {"color", "7", false, kColorMembers},
    {"linetype", "\"Continuous\""},
    {"lineweight", "-3"},
    {"transparency", "255"},
    {"plotStyle", "\"Normal\""},
    {"off", "false"},
    {"frozen", "false"},
    {"locked", "false"},
    {"plottable", "true"},
    {"frozenInNewViewports", "false"},
    {"description", "\"\""},
    {"viewportOverrides", "[]", false, "viewport color linetype lineweight transparency plotStyle"},
    {"xrefOverrides", "[]"},
};
const KyRefMemberList kTextStyleMembers{
    {"name"},        {"font", "\"\""},     {"bigFont", "\"\""},
    {"height", "0"}, {"widthFactor", "1"}, {"oblique", "0"},
};
const KyRefMemberList kDimStyleMembers{
    {"name"},
    {"textStyle", "\"Standard\""},
    {"values", "{}"},
};
const KyRefMemberList kViewMembers{
    {"name"},
    {"paperSpace", "false"},
    {"center", "[0, 0]", true},
    {"height", "1"},
    {"width", "1"},
    {"target", "[0, 0, 0]", true},
    {"direction", "[0, 0, 1]", true},
    {"lensLength", "50"},
    {"sun"},
    {"visualStyle"},
};
const KyRefMemberList kUcsMembers{
    {"name"},
    {"origin", "[0, 0, 0]", true},
    {"xAxis", "[1, 0, 0]", true},
    {"yAxis", "[0, 1, 0]", true},
};
const KyRefMemberList kViewportMembers{
    {"name"},
    {"center", "[0, 0]", true},
    {"height", "1"},
    {"width", "1"},
    {"viewCenter", "[0, 0]", true},
    {"target", "[0, 0, 0]", true},
    {"direction", "[0, 0, 1]", true},
    {"lensLength", "50"},
    {"sun"},
    {"visualStyle"},
};
const KyRefMemberList kBlockMembers{
    {"name"},
    {"base", "[0, 0, 0]", true},
    {"description", "\"\""},
    {"layout"},
    {"xref", nullptr, false, "path overlay"},
    {"entities", "[]"},
};

template <typename T>
KyDbSymbolTableRecord* make() {
    return new T();
}

template <typename T>
KyRxClass* classOf() {
    return T::desc();
}

KyGePoint3d pointOr(const KyRefJsonNode& node, const char* member, const KyGePoint3d& otherwise) {
    const auto found = node.optional(member);
    return found ? Forms::point(*found) : otherwise;
}

// Reads an optional member with `read` and hands it to `set`; a refusal of
// the record fails at the member with `expected`.
template <typename Read, typename Set>
void optionalMember(const KyRefJsonNode& node, const char* member, const char* expected, Read read,
                    Set set) {
    if (const auto found = node.optional(member)) {
        KyRefReadContext::check(set(read(*found)), *found, expected);
    }
}

// ---- Linetypes

void readLinetype(KyRefReadContext&, const KyRefJsonNode& node, KyDbSymbolTableRecord& record) {
    auto& linetype = static_cast<KyDbLinetypeTableRecord&>(record);
    linetype.setComments(node.text("description", L""));
    if (const auto pattern = node.optional("pattern")) {
        pattern->expectArray();
        KyArray<double> dashes;
        for (std::size_t i = 0; i < pattern->size(); ++i) {
            dashes.append(pattern->item(i).asNumber());
        }
        KyRefReadContext::check(linetype.setPattern(dashes), *pattern, "dash lengths");
    }
}

void writeLinetype(KyRefWriteContext&, const KyDbSymbolTableRecord& record, KyRefJson& out) {
    const auto& linetype = static_cast<const KyDbLinetypeTableRecord&>(record);
    out["description"] = kyrefUtf8(linetype.comments());
    KyRefJson pattern = KyRefJson::array();
    for (int i = 0; i < linetype.numDashes(); ++i) {
        pattern.push_back(linetype.dashLengthAt(i));
    }
    out["pattern"] = std::move(pattern);
}

// ---- Layers

void readLayer(KyRefReadContext& context, const KyRefJsonNode& node,
               KyDbSymbolTableRecord& record) {
    auto& layer = static_cast<KyDbLayerTableRecord&>(record);
    KyDbDatabase* db = context.database();
    optionalMember(
        node, "color", "a layer colour",
        [](const KyRefJsonNode& n) { return Forms::color(n, Forms::ColorUse::kLayer); },
        [&layer](const KyCmColor& color) { return layer.setColor(color); });
    const auto linetype = node.optional("linetype");
    const KyDbObjectId linetypeId =
        linetype
            ? context.record(db->linetypeTableId(), *linetype, "linetype")
            : context.record(db->linetypeTableId(), Std::kContinuous, node, "linetype", "linetype");
    KyRefReadContext::check(layer.setLinetypeObjectId(linetypeId), linetype ? *linetype : node,
                            "a linetype");
    optionalMember(
        node, "lineweight", "a layer lineweight",
        [](const KyRefJsonNode& n) { return Forms::lineWeight(n, Forms::WeightUse::kLayer); },
        [&layer](KyDb::LineWeight weight) { return layer.setLineWeight(weight); });
    optionalMember(
        node, "transparency",
        "an alpha 0 to 255: a layer's transparency can't be ByLayer or ByBlock",
        [](const KyRefJsonNode& n) { return Forms::transparency(n); },
        [&layer](const KyCmTransparency& value) { return layer.setTransparency(value); });
    optionalMember(
        node, "plotStyle", "a plot style name", [](const KyRefJsonNode& n) { return n.asText(); },
        [&layer](const KyString& name) { return layer.setPlotStyleName(name); });
    layer.setIsOff(node.boolean("off", false));
    layer.setIsFrozen(node.boolean("frozen", false));
    layer.setIsLocked(node.boolean("locked", false));
    layer.setIsPlottable(node.boolean("plottable", true));
    layer.setIsFrozenInNewViewports(node.boolean("frozenInNewViewports", false));
    layer.setDescription(node.text("description", L""));
    if (const auto overrides = node.optional("viewportOverrides")) {
        overrides->expectArray();
    }
}

void writeLayer(KyRefWriteContext& context, const KyDbSymbolTableRecord& record, KyRefJson& out) {
    const auto& layer = static_cast<const KyDbLayerTableRecord&>(record);
    out["color"] = Forms::color(layer.color());
    out["linetype"] = context.recordName(layer.linetypeObjectId());
    out["lineweight"] = static_cast<int>(layer.lineWeight());
    out["transparency"] = Forms::transparency(layer.transparency());
    out["plotStyle"] = kyrefUtf8(layer.plotStyleName());
    out["off"] = layer.isOff();
    out["frozen"] = layer.isFrozen();
    out["locked"] = layer.isLocked();
    out["plottable"] = layer.isPlottable();
    out["frozenInNewViewports"] = layer.isFrozenInNewViewports();
    out["description"] = kyrefUtf8(layer.description());
    KyRefJson overrides = KyRefJson::array();
    KyArray<KyDbObjectId> viewports;
    layer.getOverriddenViewports(viewports);
    for (int i = 0; i < viewports.length(); ++i) {
        const KyDbObjectId viewport = viewports[i];
        // The overrides of a viewport that is gone stay with the layer, for
        // an undo that brings it back, but the file has no viewport for them.
        if (!viewport.isValid() || viewport.isErased()) {
            continue;
        }
        KyRefJson entry = KyRefJson::object();
        entry["viewport"] = Forms::handle(KyDbHandle(viewport.handle()));
        bool overridden = false;
        const KyCmColor color = layer.color(viewport, overridden);
        if (overridden) {
            entry["color"] = Forms::color(color);
        }
        const KyDbObjectId linetype = layer.linetypeObjectId(viewport, overridden);
        if (overridden) {
            entry["linetype"] = context.recordName(linetype);
        }
        const KyDb::LineWeight weight = layer.lineWeight(viewport, overridden);
        if (overridden) {
            entry["lineweight"] = static_cast<int>(weight);
        }
        const KyCmTransparency transparency = layer.transparency(viewport, overridden);
        if (overridden) {
            entry["transparency"] = Forms::transparency(transparency);
        }
        KyString plotStyle;
        layer.plotStyleName(viewport, plotStyle, overridden);
        if (overridden) {
            entry["plotStyle"] = kyrefUtf8(plotStyle);
        }
        overrides.push_back(std::move(entry));
    }
    out["viewportOverrides"] = std::move(overrides);
    KyRefJson xrefOverrides = KyRefJson::array();
    for (const KyString& name : layer.xrefOverrides()) {
        xrefOverrides.push_back(kyrefUtf8(name));
    }
    out["xrefOverrides"] = std::move(xrefOverrides);
}

// ---- Text styles

void readTextStyle(KyRefReadContext&, const KyRefJsonNode& node, KyDbSymbolTableRecord& record) {
    auto& style = static_cast<KyDbTextStyleTableRecord&>(record);
    style.setFileName(node.text("font", L""));
    style.setBigFontFileName(node.text("bigFont", L""));
    optionalMember(
        node, "height", "a height of 0 or more",
        [](const KyRefJsonNode& n) { return n.asNumber(); },
        [&style](double height) { return style.setTextSize(height); });
    optionalMember(
        node, "widthFactor", "a positive width factor",
        [](const KyRefJsonNode& n) { return n.asNumber(); },
        [&style](double factor) { return style.setXScale(factor); });
    optionalMember(
        node, "oblique", "an angle", [](const KyRefJsonNode& n) { return n.asNumber(); },
        [&style](double angle) { return style.setObliquingAngle(angle); });
}

void writeTextStyle(KyRefWriteContext&, const KyDbSymbolTableRecord& record, KyRefJson& out) {
    const auto& style = static_cast<const KyDbTextStyleTableRecord&>(record);
    out["font"] = kyrefUtf8(style.fileName());
    out["bigFont"] = kyrefUtf8(style.bigFontFileName());
    out["height"] = style.textSize();
    out["widthFactor"] = style.xScale();
    out["oblique"] = style.obliquingAngle();
}

// ---- Dimension styles

// A dimension variable as a value of the database: numbers, text, true or
// false. Anything else is kept beside the style as the file had it.
bool dimensionValue(const KyRefJson& json, KyRxValue& value) {
    if (json.is_boolean()) {
        value = KyRxValue(json.get<bool>());
    } else if (json.is_number_integer() && json >= std::numeric_limits<int>::min() &&
               json <= std::numeric_limits<int>::max()) {
        value = KyRxValue(json.get<int>());
    } else if (json.is_number_float()) {
        value = KyRxValue(json.get<double>());
    } else if (json.is_string()) {
        value = KyRxValue(kyrefWide(json.get_ref<const std::string&>()));
    } else {
        return false;
    }
    return true;
}

KyRefJson dimensionJson(const KyRxValue& value) {
    if (const bool* flag = valueCast<bool>(&value)) {
        return *flag;
    }
    if (const int* number = valueCast<int>(&value)) {
        return *number;
    }
    if (const short* small = valueCast<short>(&value)) {
        return *small;
    }
    if (const double* real = valueCast<double>(&value)) {
        return *real;
    }
    if (const KyString* text = valueCast<KyString>(&value)) {
        return kyrefUtf8(*text);
    }
    return kyrefUtf8(value.text());
}

void readDimStyle(KyRefReadContext& context, const KyRefJsonNode& node,
                  KyDbSymbolTableRecord& record) {
    auto& style = static_cast<KyDbDimStyleTableRecord&>(record);
    KyDbDatabase* db = context.database();
    const auto textStyle = node.optional("textStyle");
    const KyDbObjectId textStyleId =
        textStyle ? context.record(db->textStyleTableId(), *textStyle, "text style")
                  : context.record(db->textStyleTableId(), Std::kStandard, node, "textStyle",
                                   "text style");
    KyRefReadContext::check(style.setDimtxsty(textStyleId), textStyle ? *textStyle : node,
                            "a text style");
    if (const auto values = node.optional("values")) {
        values->expectObject();
        KyRefJson kept = KyRefJson::object();
        for (auto it = values->value().begin(); it != values->value().end(); ++it) {
            KyRxValue value;
            if (dimensionValue(*it, value)) {
                KyRefReadContext::check(style.setValue(kyrefWide(it.key()), value),
                                        KyRefJsonNode(*it, *values, it.key()),
                                        "a dimension variable");
            } else {
                kept[it.key()] = *it;
            }
        }
        if (!kept.empty()) {
            context.keepUnknown("values", std::move(kept));
        }
    }
}

void writeDimStyle(KyRefWriteContext& context, const KyDbSymbolTableRecord& record,
                   KyRefJson& out) {
    const auto& style = static_cast<const KyDbDimStyleTableRecord&>(record);
    out["textStyle"] = context.recordName(style.dimtxsty());
    KyRefJson values = KyRefJson::object();
    const KyStringArray names = style.valueNames();
    for (int i = 0; i < names.length(); ++i) {
        KyRxValue value;
        if (style.getValue(names[i], value) == Kyro::eOk) {
            values[kyrefUtf8(names[i])] = dimensionJson(value);
        }
    }
    out["values"] = std::move(values);
}

// ---- Views and viewport configurations

void readSun(KyRefReadContext& context, const KyRefJsonNode& node,
             KyDbAbstractViewTableRecord& view) {
    if (const auto sun = node.optional("sun")) {
        KyRefReadContext::check(
            view.setSun(context.object(*sun, KyDbSun::desc(), "a sun (SUN object)")), *sun,
            "the handle of a sun");
    }
}

void writeSun(const KyDbAbstractViewTableRecord& view, KyRefJson& out) {
    if (!view.sunId().isNull()) {
        out["sun"] = Forms::handle(KyDbHandle(view.sunId().handle()));
    }
}

void readVisualStyle(KyRefReadContext& context, const KyRefJsonNode& node,
                     KyDbAbstractViewTableRecord& view) {
    if (const auto style = node.optional("visualStyle")) {
        KyRefReadContext::check(
            view.setVisualStyle(context.entry(context.database()->visualStyleDictionaryId(), *style,
                                              "visual style")),
            *style, "the name of a visual style");
    }
}

void writeVisualStyle(KyRefWriteContext& context, const KyDbAbstractViewTableRecord& view,
                      KyRefJson& out) {
    if (!view.visualStyleId().isNull()) {
        out["visualStyle"] = context.entryKey(view.visualStyleId());
    }
}

// What views and viewport configurations share: the view, its sun and its
// visual style.
void readViewOf(KyRefReadContext& context, const KyRefJsonNode& node,
                KyDbAbstractViewTableRecord& view) {
    view.setCenterPoint(pointOr(node, "center", KyGePoint3d()));
    optionalMember(
        node, "height", "a positive height", [](const KyRefJsonNode& n) { return n.asNumber(); },
        [&view](double height) { return view.setHeight(height); });
    optionalMember(
        node, "width", "a positive width", [](const KyRefJsonNode& n) { return n.asNumber(); },
        [&view](double width) { return view.setWidth(width); });
    view.setTarget(pointOr(node, "target", KyGePoint3d()));
    optionalMember(
        node, "direction", "a direction other than [0, 0, 0]",
        [](const KyRefJsonNode& n) { return Forms::point(n); },
        [&view](const KyGePoint3d& direction) { return view.setViewDirection(direction); });
    optionalMember(
        node, "lensLength", "a positive lens length",
        [](const KyRefJsonNode& n) { return n.asNumber(); },
        [&view](double length) { return view.setLensLength(length); });
    readSun(context, node, view);
    readVisualStyle(context, node, view);
}

void writeViewOf(KyRefWriteContext& context, const KyDbAbstractViewTableRecord& view,
                 KyRefJson& out) {
    out["center"] = Forms::point(view.centerPoint());
    out["height"] = view.height();
    out["width"] = view.width();
    out["target"] = Forms::point(view.target());
    out["direction"] = Forms::point(view.viewDirection());
    out["lensLength"] = view.lensLength();
    writeSun(view, out);
    writeVisualStyle(context, view, out);
}

void readView(KyRefReadContext& context, const KyRefJsonNode& node, KyDbSymbolTableRecord& record) {
    auto& view = static_cast<KyDbViewTableRecord&>(record);
    view.setIsPaperspaceView(node.boolean("paperSpace", false));
    readViewOf(context, node, view);
}

void writeView(KyRefWriteContext& context, const KyDbSymbolTableRecord& record, KyRefJson& out) {
    const auto& view = static_cast<const KyDbViewTableRecord&>(record);
    out["paperSpace"] = view.isPaperspaceView();
    writeViewOf(context, view, out);
}

void readViewport(KyRefReadContext& context, const KyRefJsonNode& node,
                  KyDbSymbolTableRecord& record) {
    auto& viewport = static_cast<KyDbViewportTableRecord&>(record);
    readViewOf(context, node, viewport);
    viewport.setViewCenter(pointOr(node, "viewCenter", KyGePoint3d()));
}

void writeViewport(KyRefWriteContext& context, const KyDbSymbolTableRecord& record,
                   KyRefJson& out) {
    const auto& viewport = static_cast<const KyDbViewportTableRecord&>(record);
    writeViewOf(context, viewport, out);
    out["viewCenter"] = Forms::point(viewport.viewCenter());
}

// ---- User coordinate systems

void readUcs(KyRefReadContext&, const KyRefJsonNode& node, KyDbSymbolTableRecord& record) {
    auto& ucs = static_cast<KyDbUCSTableRecord&>(record);
    ucs.setOrigin(pointOr(node, "origin", KyGePoint3d()));
    optionalMember(
        node, "xAxis", "an axis other than [0, 0, 0]",
        [](const KyRefJsonNode& n) { return Forms::point(n); },
        [&ucs](const KyGePoint3d& axis) { return ucs.setXAxis(axis); });
    optionalMember(
        node, "yAxis", "an axis other than [0, 0, 0]",
        [](const KyRefJsonNode& n) { return Forms::point(n); },
        [&ucs](const KyGePoint3d& axis) { return ucs.setYAxis(axis); });
}

void writeUcs(KyRefWriteContext&, const KyDbSymbolTableRecord& record, KyRefJson& out) {
    const auto& ucs = static_cast<const KyDbUCSTableRecord&>(record);
    out["origin"] = Forms::point(ucs.origin());
    out["xAxis"] = Forms::point(ucs.xAxis());
    out["yAxis"] = Forms::point(ucs.yAxis());
}

// ---- Blocks (their layout and entities are read and written by the
// reader and writer, once the objects they refer to are there)

void readBlock(KyRefReadContext&, const KyRefJsonNode& node, KyDbSymbolTableRecord& record) {
    auto& block = static_cast<KyDbBlockTableRecord&>(record);
    block.setOrigin(pointOr(node, "base", KyGePoint3d()));
    block.setComments(node.text("description", L""));
    if (const auto xref = node.optional("xref")) {
        xref->expectObject();
        const KyRefJsonNode path = xref->required("path", "the path of the referenced drawing");
        KyRefReadContext::check(block.setPathName(path.asText()), path, "a path");
        block.setIsFromOverlayReference(
            xref->required("overlay", "true or false: whether it is an overlay").asBool());
    }
    if (const auto entities = node.optional("entities")) {
        entities->expectArray();
    }
}

void writeBlock(KyRefWriteContext& context, const KyDbSymbolTableRecord& record, KyRefJson& out) {
    const auto& block = static_cast<const KyDbBlockTableRecord&>(record);
    out["base"] = Forms::point(block.origin());
    out["description"] = kyrefUtf8(block.comments());
    const KyDbObjectId layout = block.getLayoutId();
    if (!layout.isNull() && !layout.isErased() && !context.isLeftOut(layout)) {
        out["layout"] = Forms::handle(KyDbHandle(layout.handle()));
    }
    if (block.isFromExternalReference()) {
        KyRefJson xref = KyRefJson::object();
        xref["path"] = kyrefUtf8(block.pathName());
        xref["overlay"] = block.isFromOverlayReference();
        out["xref"] = std::move(xref);
    }
}

const KyRefTableRow kRows[] = {
    {"linetypes", "linetype", &KyDbDatabase::linetypeTableId, Std::kLinetypes, &kLinetypeMembers,
     &classOf<KyDbLinetypeTableRecord>, &make<KyDbLinetypeTableRecord>, &readLinetype,
     &writeLinetype},
    {"layers", "layer", &KyDbDatabase::layerTableId, Std::kLayers, &kLayerMembers,
     &classOf<KyDbLayerTableRecord>, &make<KyDbLayerTableRecord>, &readLayer, &writeLayer},
    {"textStyles", "text style", &KyDbDatabase::textStyleTableId, Std::kTextStyles,
     &kTextStyleMembers, &classOf<KyDbTextStyleTableRecord>, &make<KyDbTextStyleTableRecord>,
     &readTextStyle, &writeTextStyle},
    {"dimStyles", "dimension style", &KyDbDatabase::dimStyleTableId, Std::kDimStyles,
     &kDimStyleMembers, &classOf<KyDbDimStyleTableRecord>, &make<KyDbDimStyleTableRecord>,
     &readDimStyle, &writeDimStyle},
    {"ucs", "user coordinate system", &KyDbDatabase::UCSTableId, 0, &kUcsMembers,
     &classOf<KyDbUCSTableRecord>, &make<KyDbUCSTableRecord>, &readUcs, &writeUcs},
    {"blocks", "block", &KyDbDatabase::blockTableId, Std::kBlocks, &kBlockMembers,
     &classOf<KyDbBlockTableRecord>, &make<KyDbBlockTableRecord>, &readBlock, &writeBlock},
    {"views", "view", &KyDbDatabase::viewTableId, 0, &kViewMembers, &classOf<KyDbViewTableRecord>,
     &make<KyDbViewTableRecord>, &readView, &writeView},
    {"viewports", "viewport configuration", &KyDbDatabase::viewportTableId, 0, &kViewportMembers,
     &classOf<KyDbViewportTableRecord>, &make<KyDbViewportTableRecord>, &readViewport,
     &writeViewport},
};

}  // namespace

std::span<const KyRefTableRow> KyRefTableRows::rows() {
    return kRows;
}

const KyRefTableRow& KyRefTableRows::named(std::string_view member) {
    for (const KyRefTableRow& row : kRows) {
        if (member == row.member) {
            return row;
        }
    }
    return kRows[0];
}

const KyRefTableRow* KyRefTableRows::ofRecordClass(const KyRxClass* recordClass) {
    for (const KyRefTableRow& row : kRows) {
        if (row.recordClass() == recordClass) {
            return &row;
        }
    }
    return nullptr;
}

void KyRefTableRows::readXrefOverrides(const KyRefJsonNode& node, KyDbObjectId layerId) {
    const auto overrides = node.optional("xrefOverrides");
    if (!overrides) {
        return;
    }
    overrides->expectArray();
    KyStringArray names;
    for (std::size_t i = 0; i < overrides->size(); ++i) {
        names.append(overrides->item(i).asText());
    }
    if (names.isEmpty()) {
        return;
    }
    KyDbObjectPointer<KyDbLayerTableRecord> layer(layerId, KyDb::kForWrite);
    if (layer && !layer->isDependent()) {
        overrides->fail(
            "expected no overrides: only a layer of an external reference (\"XREF|name\", "
            "where XREF is a block with \"xref\") has them");
    }
    KyRefReadContext::check(layer ? layer->setXrefOverrides(names) : layer.openStatus(), *overrides,
                            "the names of writable layer properties (\"Color\", \"IsOff\" ...), "
                            "each once");
}

void KyRefTableRows::readViewportOverrides(KyRefReadContext& context, const KyRefJsonNode& node,
                                           KyDbObjectId layerId) {
    const auto overrides = node.optional("viewportOverrides");
    if (!overrides || overrides->size() == 0) {
        return;
    }
    KyDbObjectPointer<KyDbLayerTableRecord> layer(layerId, KyDb::kForWrite);
    KyDbDatabase* db = context.database();
    std::vector<KyDbObjectId> viewports;
    for (std::size_t i = 0; i < overrides->size(); ++i) {
        const KyRefJsonNode entry = overrides->item(i);
        entry.expectObject();
        const KyRefJsonNode viewportNode = entry.required("viewport", "the handle of a viewport");
        const KyDbObjectId viewport =
            context.object(viewportNode, KyDbViewport::desc(), "a viewport (VIEWPORT entity)");
        // One entry for each viewport, and one that overrides something: the
        // layer keeps one set of overrides for each viewport, and none makes
        // no entry.
        if (std::find(viewports.begin(), viewports.end(), viewport) != viewports.end()) {
            viewportNode.fail("the viewport " + viewportNode.value().dump() +
                              " has overrides of this layer already; expected each viewport "
                              "once");
        }
        viewports.push_back(viewport);
        const bool overridesSomething = entry.has("color") || entry.has("linetype") ||
                                        entry.has("lineweight") || entry.has("transparency") ||
                                        entry.has("plotStyle");
        if (!overridesSomething) {
            entry.fail(
                "expected an override of color, linetype, lineweight, transparency or "
                "plotStyle, found none");
        }
        optionalMember(
            entry, "color", "a layer colour",
            [](const KyRefJsonNode& n) { return Forms::color(n, Forms::ColorUse::kLayer); },
            [&](const KyCmColor& color) { return layer->setColor(color, viewport); });
        optionalMember(
            entry, "linetype", "a linetype",
            [&](const KyRefJsonNode& n) {
                return context.record(db->linetypeTableId(), n, "linetype");
            },
            [&](KyDbObjectId linetype) { return layer->setLinetypeObjectId(linetype, viewport); });
        optionalMember(
            entry, "lineweight", "a layer lineweight",
            [](const KyRefJsonNode& n) { return Forms::lineWeight(n, Forms::WeightUse::kLayer); },
            [&](KyDb::LineWeight weight) { return layer->setLineWeight(weight, viewport); });
        optionalMember(
            entry, "transparency", "an alpha 0 to 255",
            [](const KyRefJsonNode& n) { return Forms::transparency(n); },
            [&](const KyCmTransparency& value) { return layer->setTransparency(value, viewport); });
        optionalMember(
            entry, "plotStyle", "a plot style name",
            [](const KyRefJsonNode& n) { return n.asText(); },
            [&](const KyString& name) { return layer->setPlotStyleName(name, viewport); });
    }
}
