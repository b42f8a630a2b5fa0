#include "KyRefEntityRows.h"

#include <memory>
#include <string>

#include "KyRefFormulas.h"
#include "KyRefMemberList.h"
#include "KyRefReadContext.h"
#include "KyRefValueForms.h"
#include "KyRefWriteContext.h"
#include "db/KyDbArc.h"
#include "db/KyDbAttribute.h"
#include "db/KyDbBlockReference.h"
#include "db/KyDbBlockTableRecord.h"
#include "db/KyDbCircle.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbDimension.h"
#include "db/KyDbEllipse.h"
#include "db/KyDbHatch.h"
#include "db/KyDbLeader.h"
#include "db/KyDbLine.h"
#include "db/KyDbMLeader.h"
#include "db/KyDbMText.h"
#include "db/KyDbObjectPointer.h"
#include "db/KyDbPoint.h"
#include "db/KyDbPolyline.h"
#include "db/KyDbRasterImageDef.h"
#include "db/KyDbStandardContent.h"
#include "db/KyDbSun.h"
#include "db/KyDbTable.h"
#include "db/KyDbText.h"
#include "db/KyDbUnknownEntity.h"
#include "db/KyDbUnknownObject.h"
#include "db/KyDbViewCallout.h"
#include "db/KyDbViewport.h"
#include "db/KyDbVisualStyle.h"
#include "rx/KyRxClass.h"

namespace {

using Forms = KyRefValueForms;
using Std = KyDbStandardContent;
using Check = KyRefReadContext;

// ---- Members

const KyRefMemberList kCommon{
    {"layer", "\"0\""},
    {"color", "256", false, "rgb book name"},
    {"linetype", "\"ByLayer\""},
    {"lineweight", "-1"},
    {"transparency", "\"ByLayer\""},
    {"linetypeScale", "1"},
    {"material", "\"ByLayer\""},
    {"plotStyle", "\"ByLayer\""},
    {"visible", "true"},
};
const KyRefMemberList kLineMembers{kCommon, {{"start", nullptr, true}, {"end", nullptr, true}}};
const KyRefMemberList kCircleMembers{kCommon, {{"center", nullptr, true}, {"radius"}}};
const KyRefMemberList kArcMembers{
    kCommon, {{"center", nullptr, true}, {"radius"}, {"startAngle"}, {"endAngle"}}};
const KyRefMemberList kEllipseMembers{kCommon,
                                      {{"center", nullptr, true},
                                       {"majorAxis", nullptr, true},
                                       {"ratio"},
                                       {"startAngle", "0"},
                                       {"endAngle", "360"}}};
const KyRefMemberList kPointMembers{kCommon, {{"position", nullptr, true}}};
const KyRefMemberList kPolylineMembers{kCommon, {{"points"}, {"closed", "false"}, {"width", "0"}}};
const KyRefMemberList kTextMembers{kCommon,
                                   {{"position", nullptr, true},
                                    {"height"},
                                    {"text"},
                                    {"style", "\"Standard\""},
                                    {"rotation", "0"},
                                    {"formulas", "{}"}}};
const KyRefMemberList kMTextMembers{kCommon,
                                    {{"position", nullptr, true},
                                     {"height"},
                                     {"text"},
                                     {"style", "\"Standard\""},
                                     {"width", "0"},
                                     {"formulas", "{}"}}};
const KyRefMemberList kInsertMembers{kCommon,
                                     {{"block"},
                                      {"position", nullptr, true},
                                      {"scale", "[1, 1, 1]"},
                                      {"rotation", "0"},
                                      {"attributes", "[]", false, "tag text=\"\""},
                                      {"dynamic", "false"}}};
const KyRefMemberList kDimensionMembers{kCommon,
                                        {{"dimStyle", "\"Standard\""},
                                         {"block"},
                                         {"points", "[]"},
                                         {"measurement"},
                                         {"text", "\"\""},
                                         {"decimalPlaces", "4"},
                                         {"formulas", "{}"}}};
const KyRefMemberList kLeaderMembers{kCommon, {{"points"}, {"dimStyle", "\"Standard\""}}};
const KyRefMemberList kMLeaderMembers{kCommon, {{"style"}, {"points"}, {"text", "\"\""}}};
const KyRefMemberList kViewCalloutMembers{kCommon,
                                          {{"kind"}, {"style"}, {"points"}, {"label", "\"\""}}};
const KyRefMemberList kHatchMembers{kCommon, {{"pattern", "\"SOLID\""}, {"loops"}}};
const KyRefMemberList kViewportMembers{kCommon,
                                       {{"center", nullptr, true},
                                        {"width"},
                                        {"height"},
                                        {"viewCenter", nullptr, true},
                                        {"viewHeight"},
                                        {"target", "[0, 0, 0]", true},
                                        {"direction", "[0, 0, 1]", true},
                                        {"lensLength", "50"},
                                        {"on", "true"},
                                        {"locked", "false"},
                                        {"frozenLayers", "[]"},
                                        {"clip"},
                                        {"visualStyle"},
                                        {"sun"}}};
const KyRefMemberList kTableMembers{
    kCommon, {{"style"}, {"position", nullptr, true}, {"rows"}, {"columns"}, {"cellStyles", "[]"}}};

template <typename T>
KyRxClass* classOf() {
    return T::desc();
}

KyGePoint3d requiredPoint(const KyRefJsonNode& node, const char* member) {
    return Forms::point(node.required(member, "a point [x, y] or [x, y, z]"));
}

// A required number handed to a setter; a refusal fails with `expected`.
template <typename Set>
void requiredNumber(const KyRefJsonNode& node, const char* member, const char* expected, Set set) {
    const KyRefJsonNode value = node.required(member, "a number");
    Check::check(set(value.asNumber()), value, expected);
}

template <typename Set>
void optionalNumber(const KyRefJsonNode& node, const char* member, const char* expected, Set set) {
    if (const auto value = node.optional(member)) {
        Check::check(set(value->asNumber()), *value, expected);
    }
}

template <typename Set>
void requiredPoints(const KyRefJsonNode& node, const char* member, Set set) {
    const KyRefJsonNode value = node.required(member, "an array of points");
    Check::check(set(Forms::points(value)), value, "points");
}

template <typename Set>
void optionalPoints(const KyRefJsonNode& node, const char* member, Set set) {
    if (const auto value = node.optional(member)) {
        Check::check(set(Forms::points(*value)), *value, "points");
    }
}

// The record named by the member, or by `otherwise` when it is absent.
KyDbObjectId namedRecord(KyRefReadContext& context, const KyRefJsonNode& node, const char* member,
                         KyDbObjectId tableId, const wchar_t* otherwise, const char* what) {
    const auto value = node.optional(member);
    return value ? context.record(tableId, *value, what)
                 : context.record(tableId, otherwise, node, member, what);
}

KyDbObjectId textStyleOf(KyRefReadContext& context, const KyRefJsonNode& node) {
    return namedRecord(context, node, "style", context.database()->textStyleTableId(),
                       Std::kStandard, "text style");
}

KyDbObjectId dimStyleOf(KyRefReadContext& context, const KyRefJsonNode& node) {
    return namedRecord(context, node, "dimStyle", context.database()->dimStyleTableId(),
                       Std::kStandard, "dimension style");
}

// ---- Lines, circles, arcs, ellipses, points, polylines

KyDbEntity* readLine(KyRefReadContext&, const KyRefJsonNode& node) {
    auto line = std::make_unique<KyDbLine>();
    line->setStartPoint(requiredPoint(node, "start"));
    line->setEndPoint(requiredPoint(node, "end"));
    return line.release();
}

void writeLine(KyRefWriteContext&, const KyDbEntity& entity, KyRefJson& out) {
    const auto& line = static_cast<const KyDbLine&>(entity);
    out["start"] = Forms::point(line.startPoint());
    out["end"] = Forms::point(line.endPoint());
}

KyDbEntity* readCircle(KyRefReadContext&, const KyRefJsonNode& node) {
    auto circle = std::make_unique<KyDbCircle>();
    circle->setCenter(requiredPoint(node, "center"));
    requiredNumber(node, "radius", "a positive radius",
                   [&](double radius) { return circle->setRadius(radius); });
    return circle.release();
}

void writeCircle(KyRefWriteContext&, const KyDbEntity& entity, KyRefJson& out) {
    const auto& circle = static_cast<const KyDbCircle&>(entity);
    out["center"] = Forms::point(circle.center());
    out["radius"] = circle.radius();
}

KyDbEntity* readArc(KyRefReadContext&, const KyRefJsonNode& node) {
    auto arc = std::make_unique<KyDbArc>();
    arc->setCenter(requiredPoint(node, "center"));
    requiredNumber(node, "radius", "a positive radius",
                   [&](double radius) { return arc->setRadius(radius); });
    requiredNumber(node, "startAngle", "an angle",
                   [&](double angle) { return arc->setStartAngle(angle); });
    requiredNumber(node, "endAngle", "an angle",
                   [&](double angle) { return arc->setEndAngle(angle); });
    return arc.release();
}

void writeArc(KyRefWriteContext&, const KyDbEntity& entity, KyRefJson& out) {
    const auto& arc = static_cast<const KyDbArc&>(entity);
    out["center"] = Forms::point(arc.center());
    out["radius"] = arc.radius();
    out["startAngle"] = arc.startAngle();
    out["endAngle"] = arc.endAngle();
}

KyDbEntity* readEllipse(KyRefReadContext&, const KyRefJsonNode& node) {
    auto ellipse = std::make_unique<KyDbEllipse>();
    ellipse->setCenter(requiredPoint(node, "center"));
    const KyRefJsonNode axis = node.required("majorAxis", "a point [x, y] or [x, y, z]");
    Check::check(ellipse->setMajorAxis(Forms::point(axis)), axis, "an axis other than [0, 0]");
    requiredNumber(node, "ratio", "a ratio above 0 and at most 1",
                   [&](double ratio) { return ellipse->setRadiusRatio(ratio); });
    optionalNumber(node, "startAngle", "an angle",
                   [&](double angle) { return ellipse->setStartAngle(angle); });
    optionalNumber(node, "endAngle", "an angle",
                   [&](double angle) { return ellipse->setEndAngle(angle); });
    return ellipse.release();
}

void writeEllipse(KyRefWriteContext&, const KyDbEntity& entity, KyRefJson& out) {
    const auto& ellipse = static_cast<const KyDbEllipse&>(entity);
    out["center"] = Forms::point(ellipse.center());
    out["majorAxis"] = Forms::point(ellipse.majorAxis());
    out["ratio"] = ellipse.radiusRatio();
    out["startAngle"] = ellipse.startAngle();
    out["endAngle"] = ellipse.endAngle();
}

KyDbEntity* readPoint(KyRefReadContext&, const KyRefJsonNode& node) {
    return new KyDbPoint(requiredPoint(node, "position"));
}

void writePoint(KyRefWriteContext&, const KyDbEntity& entity, KyRefJson& out) {
    out["position"] = Forms::point(static_cast<const KyDbPoint&>(entity).position());
}

KyDbEntity* readPolyline(KyRefReadContext&, const KyRefJsonNode& node) {
    auto polyline = std::make_unique<KyDbPolyline>();
    requiredPoints(node, "points",
                   [&](const KyArray<KyGePoint3d>& points) { return polyline->setPoints(points); });
    polyline->setClosed(node.boolean("closed", false));
    optionalNumber(node, "width", "a width of 0 or more",
                   [&](double width) { return polyline->setConstantWidth(width); });
    return polyline.release();
}

void writePolyline(KyRefWriteContext&, const KyDbEntity& entity, KyRefJson& out) {
    const auto& polyline = static_cast<const KyDbPolyline&>(entity);
    out["points"] = Forms::points(polyline.points());
    out["closed"] = polyline.isClosed();
    out["width"] = polyline.constantWidth();
}

// ---- Texts

KyDbEntity* readText(KyRefReadContext& context, const KyRefJsonNode& node) {
    auto text = std::make_unique<KyDbText>();
    text->setPosition(requiredPoint(node, "position"));
    requiredNumber(node, "height", "a positive height",
                   [&](double height) { return text->setHeight(height); });
    text->setTextString(node.text("text"));
    text->setTextStyle(textStyleOf(context, node));
    optionalNumber(node, "rotation", "an angle",
                   [&](double angle) { return text->setRotation(angle); });
    KyRefFormulas::read(node, {{"height", "a positive height", [&](const wchar_t* formula) {
                                    return text->setHeightFormula(formula);
                                }}});
    return text.release();
}

void writeText(KyRefWriteContext& context, const KyDbEntity& entity, KyRefJson& out) {
    const auto& text = static_cast<const KyDbText&>(entity);
    out["position"] = Forms::point(text.position());
    out["height"] = text.height();
    out["text"] = kyrefUtf8(text.textString());
    out["style"] = context.recordName(text.textStyle());
    out["rotation"] = text.rotation();
    KyRefFormulas::write(out, {{"height", &text.heightFormula()}});
}

KyDbEntity* readMText(KyRefReadContext& context, const KyRefJsonNode& node) {
    auto text = std::make_unique<KyDbMText>();
    text->setLocation(requiredPoint(node, "position"));
    requiredNumber(node, "height", "a positive height",
                   [&](double height) { return text->setTextHeight(height); });
    text->setContents(node.text("text"));
    text->setTextStyle(textStyleOf(context, node));
    optionalNumber(node, "width", "a width of 0 or more",
                   [&](double width) { return text->setWidth(width); });
    KyRefFormulas::read(node, {{"height", "a positive height", [&](const wchar_t* formula) {
                                    return text->setTextHeightFormula(formula);
                                }}});
    return text.release();
}

void writeMText(KyRefWriteContext& context, const KyDbEntity& entity, KyRefJson& out) {
    const auto& text = static_cast<const KyDbMText&>(entity);
    out["position"] = Forms::point(text.location());
    out["height"] = text.textHeight();
    out["text"] = kyrefUtf8(text.contents());
    out["style"] = context.recordName(text.textStyle());
    out["width"] = text.width();
    KyRefFormulas::write(out, {{"height", &text.textHeightFormula()}});
}

// ---- Block references

KyDbEntity* readInsert(KyRefReadContext& context, const KyRefJsonNode& node) {
    auto reference = std::make_unique<KyDbBlockReference>();
    const KyRefJsonNode block = node.required("block", "the name of a block");
    Check::check(reference->setBlockTableRecord(
                     context.record(context.database()->blockTableId(), block, "block")),
                 block, "the name of a block");
    reference->setPosition(requiredPoint(node, "position"));
    if (const auto scale = node.optional("scale")) {
        scale->expectArray();
        if (scale->size() != 3) {
            scale->fail("expected a scale [x, y, z]");
        }
        const KyGePoint3d factors(scale->item(0).asNumber(), scale->item(1).asNumber(),
                                  scale->item(2).asNumber());
        Check::check(reference->setScaleFactors(factors), *scale, "scale factors other than 0");
    }
    optionalNumber(node, "rotation", "an angle",
                   [&](double angle) { return reference->setRotation(angle); });
    reference->setIsDynamic(node.boolean("dynamic", false));
    if (const auto attributes = node.optional("attributes")) {
        attributes->expectArray();
    }
    return reference.release();
}

void fillInsert(KyRefReadContext& context, const KyRefJsonNode& node, KyDbEntity& entity) {
    const auto attributes = node.optional("attributes");
    if (!attributes) {
        return;
    }
    auto& reference = static_cast<KyDbBlockReference&>(entity);
    KyDbDatabase* db = context.database();
    for (std::size_t i = 0; i < attributes->size(); ++i) {
        const KyRefJsonNode item = attributes->item(i);
        item.expectObject();
        auto attribute = std::make_unique<KyDbAttribute>();
        const KyRefJsonNode tag = item.required("tag", "a tag");
        Check::check(attribute->setTag(tag.asText()), tag, "a tag that is not empty");
        attribute->setTextString(item.text("text", L""));
        // An attribute shows as its reference does.
        attribute->setLayer(reference.layerId());
        attribute->setLinetype(
            context.record(db->linetypeTableId(), Std::kByLayer, node, "linetype", "linetype"));
        attribute->setMaterial(reference.materialId());
        attribute->setTextStyle(
            context.record(db->textStyleTableId(), Std::kStandard, item, "style", "text style"));
        KyDbObjectId id;
        Check::check(reference.appendAttribute(id, attribute.get()), item, "an attribute");
        attribute.release()->close();
    }
}

void writeInsert(KyRefWriteContext& context, const KyDbEntity& entity, KyRefJson& out) {
    const auto& reference = static_cast<const KyDbBlockReference&>(entity);
    out["block"] = context.recordName(reference.blockTableRecord());
    out["position"] = Forms::point(reference.position());
    const KyGePoint3d& scale = reference.scaleFactors();
    out["scale"] = KyRefJson::array({scale.x, scale.y, scale.z});
    out["rotation"] = reference.rotation();
    KyRefJson attributes = KyRefJson::array();
    KyArray<KyDbObjectId> ids;
    reference.getAttributeIds(ids);
    for (int i = 0; i < ids.length(); ++i) {
        KyDbObjectPointer<KyDbAttribute> attribute(ids[i], KyDb::kForRead);
        if (attribute.openStatus() == Kyro::eOk) {
            attributes.push_back({{"tag", kyrefUtf8(attribute->tag())},
                                  {"text", kyrefUtf8(attribute->textString())}});
        }
    }
    out["attributes"] = std::move(attributes);
    out["dynamic"] = reference.isDynamic();
}

// ---- Dimensions and leaders

KyDbEntity* readDimension(KyRefReadContext& context, const KyRefJsonNode& node) {
    auto dimension = std::make_unique<KyDbDimension>();
    dimension->setDimensionStyle(dimStyleOf(context, node));
    if (const auto block = node.optional("block")) {
        Check::check(dimension->setDimBlockId(
                         context.record(context.database()->blockTableId(), *block, "block")),
                     *block, "the name of a block");
    }
    optionalPoints(node, "points", [&](const KyArray<KyGePoint3d>& points) {
        return dimension->setPoints(points);
    });
    optionalNumber(node, "measurement", "a measurement",
                   [&](double value) { return dimension->setMeasurement(value); });
    dimension->setDimensionText(node.text("text", L""));
    dimension->setDecimalPlaces(
        node.integer("decimalPlaces", 4, 0, KyDbDimension::kMaxDecimalPlaces));
    KyRefFormulas::read(
        node,
        {{"decimalPlaces", "a number of decimal places from 0 to 8",
          [&](const wchar_t* formula) { return dimension->setDecimalPlacesFormula(formula); }}});
    return dimension.release();
}

void writeDimension(KyRefWriteContext& context, const KyDbEntity& entity, KyRefJson& out) {
    const auto& dimension = static_cast<const KyDbDimension&>(entity);
    out["dimStyle"] = context.recordName(dimension.dimensionStyle());
    if (!dimension.dimBlockId().isNull()) {
        out["block"] = context.recordName(dimension.dimBlockId());
    }
    out["points"] = Forms::points(dimension.points());
    if (dimension.hasMeasurement()) {
        out["measurement"] = dimension.measurement();
    }
    out["text"] = kyrefUtf8(dimension.dimensionText());
    out["decimalPlaces"] = dimension.decimalPlaces();
    KyRefFormulas::write(out, {{"decimalPlaces", &dimension.decimalPlacesFormula()}});
}

KyDbEntity* readLeader(KyRefReadContext& context, const KyRefJsonNode& node) {
    auto leader = std::make_unique<KyDbLeader>();
    requiredPoints(node, "points",
                   [&](const KyArray<KyGePoint3d>& points) { return leader->setPoints(points); });
    leader->setDimensionStyle(dimStyleOf(context, node));
    return leader.release();
}

void writeLeader(KyRefWriteContext& context, const KyDbEntity& entity, KyRefJson& out) {
    const auto& leader = static_cast<const KyDbLeader&>(entity);
    out["points"] = Forms::points(leader.points());
    out["dimStyle"] = context.recordName(leader.dimensionStyle());
}

KyDbEntity* readMLeader(KyRefReadContext& context, const KyRefJsonNode& node) {
    auto leader = std::make_unique<KyDbMLeader>();
    const KyRefJsonNode style = node.required("style", "the name of a multileader style");
    Check::check(leader->setMLeaderStyle(context.entry(
                     context.database()->mleaderStyleDictionaryId(), style, "multileader style")),
                 style, "the name of a multileader style");
    requiredPoints(node, "points",
                   [&](const KyArray<KyGePoint3d>& points) { return leader->setPoints(points); });
    leader->setContents(node.text("text", L""));
    return leader.release();
}

void writeMLeader(KyRefWriteContext& context, const KyDbEntity& entity, KyRefJson& out) {
    const auto& leader = static_cast<const KyDbMLeader&>(entity);
    out["style"] = context.entryKey(leader.MLeaderStyle());
    out["points"] = Forms::points(leader.points());
    out["text"] = kyrefUtf8(leader.contents());
}

// ---- View callouts

// The words of the kinds of callout, in the order of KyDbViewCallout::Kind.
constexpr const char* kCalloutKinds[] = {"section", "detail"};

KyDbEntity* readViewCallout(KyRefReadContext& context, const KyRefJsonNode& node) {
    auto callout = std::make_unique<KyDbViewCallout>();
    const KyRefJsonNode kindNode = node.required("kind", "\"section\" or \"detail\"");
    const std::string word = kindNode.asString();
    const int kind = word == kCalloutKinds[0]   ? KyDbViewCallout::kSection
                     : word == kCalloutKinds[1] ? KyDbViewCallout::kDetail
                                                : 0;
    if (kind == 0) {
        kindNode.fail("expected \"section\" or \"detail\", found \"" + word + "\"");
    }
    callout->setKind(kind);
    const char* what =
        kind == KyDbViewCallout::kSection ? "section view style" : "detail view style";
    const std::string expected = std::string("the name of a ") + what;
    const KyRefJsonNode style = node.required("style", expected.c_str());
    Check::check(callout->setViewStyle(context.entry(
                     KyDbViewCallout::styleDictionaryId(context.database(), kind), style, what)),
                 style, expected.c_str());
    requiredPoints(node, "points",
                   [&](const KyArray<KyGePoint3d>& points) { return callout->setPoints(points); });
    callout->setLabel(node.text("label", L""));
    return callout.release();
}

void writeViewCallout(KyRefWriteContext& context, const KyDbEntity& entity, KyRefJson& out) {
    const auto& callout = static_cast<const KyDbViewCallout&>(entity);
    out["kind"] = kCalloutKinds[callout.kind() == KyDbViewCallout::kDetail ? 1 : 0];
    out["style"] = context.entryKey(callout.viewStyle());
    out["points"] = Forms::points(callout.points());
    out["label"] = kyrefUtf8(callout.label());
}

// ---- Viewports

KyDbEntity* readViewport(KyRefReadContext& context, const KyRefJsonNode& node) {
    auto viewport = std::make_unique<KyDbViewport>();
    KyDbDatabase* db = context.database();
    viewport->setCenterPoint(requiredPoint(node, "center"));
    requiredNumber(node, "width", "a positive width",
                   [&](double width) { return viewport->setWidth(width); });
    requiredNumber(node, "height", "a positive height",
                   [&](double height) { return viewport->setHeight(height); });
    viewport->setViewCenter(requiredPoint(node, "viewCenter"));
    requiredNumber(node, "viewHeight", "a positive height",
                   [&](double height) { return viewport->setViewHeight(height); });
    if (const auto target = node.optional("target")) {
        viewport->setViewTarget(Forms::point(*target));
    }
    if (const auto direction = node.optional("direction")) {
        Check::check(viewport->setViewDirection(Forms::point(*direction)), *direction,
                     "a direction other than [0, 0, 0]");
    }
    if (const auto lens = node.optional("lensLength")) {
        Check::check(viewport->setLensLength(lens->asNumber()), *lens, "a positive lens length");
    }
    viewport->setOn(node.boolean("on", true));
    viewport->setLocked(node.boolean("locked", false));
    if (const auto frozen = node.optional("frozenLayers")) {
        frozen->expectArray();
        KyArray<KyDbObjectId> layers;
        for (std::size_t i = 0; i < frozen->size(); ++i) {
            const KyRefJsonNode name = frozen->item(i);
            const KyDbObjectId layer = context.record(db->layerTableId(), name, "layer");
            if (layers.contains(layer)) {
                name.fail("the layer \"" + name.asString() +
                          "\" is frozen here already; expected each layer once (in any case)");
            }
            layers.append(layer);
        }
        Check::check(viewport->freezeLayersInViewport(layers), *frozen, "layer names");
    }
    if (const auto clip = node.optional("clip")) {
        Check::check(viewport->setNonRectClipPoints(Forms::points(*clip)), *clip,
                     "at least three points");
    }
    if (const auto style = node.optional("visualStyle")) {
        Check::check(viewport->setVisualStyle(
                         context.entry(db->visualStyleDictionaryId(), *style, "visual style")),
                     *style, "the name of a visual style");
    }
    if (const auto sun = node.optional("sun")) {
        Check::check(viewport->setSun(context.object(*sun, KyDbSun::desc(), "a sun (SUN object)")),
                     *sun, "the handle of a sun");
    }
    return viewport.release();
}

void writeViewport(KyRefWriteContext& context, const KyDbEntity& entity, KyRefJson& out) {
    const auto& viewport = static_cast<const KyDbViewport&>(entity);
    out["center"] = Forms::point(viewport.centerPoint());
    out["width"] = viewport.width();
    out["height"] = viewport.height();
    out["viewCenter"] = Forms::point(viewport.viewCenter());
    out["viewHeight"] = viewport.viewHeight();
    out["target"] = Forms::point(viewport.viewTarget());
    out["direction"] = Forms::point(viewport.viewDirection());
    out["lensLength"] = viewport.lensLength();
    out["on"] = viewport.isOn();
    out["locked"] = viewport.isLocked();
    KyArray<KyDbObjectId> layers;
    viewport.getFrozenLayerList(layers);
    KyRefJson frozen = KyRefJson::array();
    for (int i = 0; i < layers.length(); ++i) {
        frozen.push_back(context.recordName(layers[i]));
    }
    out["frozenLayers"] = std::move(frozen);
    if (viewport.isNonRectClipOn()) {
        out["clip"] = Forms::points(viewport.nonRectClipPoints());
    }
    if (!viewport.visualStyleId().isNull()) {
        out["visualStyle"] = context.entryKey(viewport.visualStyleId());
    }
    if (!viewport.sunId().isNull()) {
        out["sun"] = Forms::handle(KyDbHandle(viewport.sunId().handle()));
    }
}

// ---- Tables

// The cell styles of a table of `rows` by `columns` cells: [] while every
// cell has "Data", or one array of names for each row.
KyStringArray cellStyleGrid(const KyRefJsonNode& node, int rows, int columns) {
    node.expectArray();
    KyStringArray grid;
    if (node.size() == 0) {
        return grid;
    }
    if (node.size() != static_cast<std::size_t>(rows)) {
        node.fail("expected [] or " + std::to_string(rows) +
                  " rows of cell style names (one for each row), found " +
                  std::to_string(node.size()) + (node.size() == 1 ? " row" : " rows"));
    }
    for (std::size_t i = 0; i < node.size(); ++i) {
        const KyRefJsonNode row = node.item(i);
        row.expectArray();
        if (row.size() != static_cast<std::size_t>(columns)) {
            row.fail("expected " + std::to_string(columns) +
                     " cell style names (one for each column), found " +
                     std::to_string(row.size()));
        }
        for (std::size_t j = 0; j < row.size(); ++j) {
            const KyRefJsonNode name = row.item(j);
            const KyString text = name.asText();
            if (text.isEmpty()) {
                name.fail("expected the name of a cell style, found \"\"");
            }
            grid.append(text);
        }
    }
    return grid;
}

KyDbEntity* readTable(KyRefReadContext& context, const KyRefJsonNode& node) {
    auto table = std::make_unique<KyDbTable>();
    const KyRefJsonNode style = node.required("style", "the name of a table style");
    Check::check(table->setTableStyle(context.entry(context.database()->tableStyleDictionaryId(),
                                                    style, "table style")),
                 style, "the name of a table style");
    table->setPosition(requiredPoint(node, "position"));
    // Each count from 1; together no more cells than a table holds.
    const std::string most =
        "a table of at most " + std::to_string(KyDbTable::kMaxCells) + " cells";
    const KyRefJsonNode rows = node.required("rows", "an integer");
    Check::check(table->setNumRows(rows.asInteger(1, KyDbTable::kMaxCells)), rows, most.c_str());
    const KyRefJsonNode columns = node.required("columns", "an integer");
    Check::check(table->setNumColumns(columns.asInteger(1, KyDbTable::kMaxCells)), columns,
                 most.c_str());
    if (const auto cellStyles = node.optional("cellStyles")) {
        table->setCellStyles(cellStyleGrid(*cellStyles, table->numRows(), table->numColumns()));
    }
    return table.release();
}

void writeTable(KyRefWriteContext& context, const KyDbEntity& entity, KyRefJson& out) {
    const auto& table = static_cast<const KyDbTable&>(entity);
    out["style"] = context.entryKey(table.tableStyle());
    out["position"] = Forms::point(table.position());
    out["rows"] = table.numRows();
    out["columns"] = table.numColumns();
    KyRefJson grid = KyRefJson::array();
    if (!table.cellStyles().isEmpty()) {
        for (int row = 0; row < table.numRows(); ++row) {
            KyRefJson names = KyRefJson::array();
            for (int column = 0; column < table.numColumns(); ++column) {
                names.push_back(kyrefUtf8(table.cellStyle(row, column)));
            }
            grid.push_back(std::move(names));
        }
    }
    out["cellStyles"] = std::move(grid);
}

// ---- Hatches

KyDbEntity* readHatch(KyRefReadContext&, const KyRefJsonNode& node) {
    auto hatch = std::make_unique<KyDbHatch>();
    if (const auto pattern = node.optional("pattern")) {
        Check::check(hatch->setPatternName(pattern->asText()), *pattern,
                     "a pattern name that is not empty");
    }
    const KyRefJsonNode loops =
        node.required("loops", "an array of loops, each an array of at least 3 points");
    loops.expectArray();
    KyDbLoopArray read;
    for (std::size_t i = 0; i < loops.size(); ++i) {
        const KyRefJsonNode loop = loops.item(i);
        const KyDbLoop points = Forms::points(loop);
        if (points.length() < KyDbRegion::kMinLoopPoints) {
            loop.fail("expected a closed polygon of at least 3 points, found " +
                      std::to_string(points.length()) +
                      (points.length() == 1 ? " point" : " points"));
        }
        read.append(points);
    }
    Check::check(hatch->setLoops(read), loops, "loops of at least 3 points");
    return hatch.release();
}

void writeHatch(KyRefWriteContext&, const KyDbEntity& entity, KyRefJson& out) {
    const auto& hatch = static_cast<const KyDbHatch&>(entity);
    out["pattern"] = kyrefUtf8(hatch.patternName());
    KyRefJson loops = KyRefJson::array();
    for (const KyDbLoop& loop : hatch.loops()) {
        loops.push_back(Forms::points(loop));
    }
    out["loops"] = std::move(loops);
}

// ---- Types kept whole: their members are checked, their references too

KyDbEntity* checkImage(KyRefReadContext& context, const KyRefJsonNode& node) {
    context.object(node.required("definition", "the handle of an image definition"),
                   KyDbRasterImageDef::desc(), "an image definition (IMAGEDEF object)");
    requiredPoint(node, "position");
    const KyRefJsonNode size = node.required("size", "[width, height]");
    size.expectArray();
    if (size.size() != 2) {
        size.fail("expected [width, height]");
    }
    size.item(0).asNumber();
    size.item(1).asNumber();
    return nullptr;
}

KyDbEntity* checkPointCloud(KyRefReadContext& context, const KyRefJsonNode& node) {
    context.object(node.required("definition", "the handle of a point cloud definition"),
                   KyDbUnknownObject::desc(), "a point cloud definition (POINTCLOUDDEF object)");
    requiredPoint(node, "position");
    return nullptr;
}

const KyRefEntityRow kRows[] = {
    {nullptr, &classOf<KyDbLine>, &kLineMembers, &readLine, nullptr, &writeLine},
    {nullptr, &classOf<KyDbCircle>, &kCircleMembers, &readCircle, nullptr, &writeCircle},
    {nullptr, &classOf<KyDbArc>, &kArcMembers, &readArc, nullptr, &writeArc},
    {nullptr, &classOf<KyDbEllipse>, &kEllipseMembers, &readEllipse, nullptr, &writeEllipse},
    {nullptr, &classOf<KyDbPoint>, &kPointMembers, &readPoint, nullptr, &writePoint},
    {nullptr, &classOf<KyDbPolyline>, &kPolylineMembers, &readPolyline, nullptr, &writePolyline},
    {nullptr, &classOf<KyDbText>, &kTextMembers, &readText, nullptr, &writeText},
    {nullptr, &classOf<KyDbMText>, &kMTextMembers, &readMText, nullptr, &writeMText},
    {nullptr, &classOf<KyDbBlockReference>, &kInsertMembers, &readInsert, &fillInsert,
     &writeInsert},
    {nullptr, &classOf<KyDbDimension>, &kDimensionMembers, &readDimension, nullptr,
     &writeDimension},
    {nullptr, &classOf<KyDbLeader>, &kLeaderMembers, &readLeader, nullptr, &writeLeader},
    {nullptr, &classOf<KyDbMLeader>, &kMLeaderMembers, &readMLeader, nullptr, &writeMLeader},
    {nullptr, &classOf<KyDbViewport>, &kViewportMembers, &readViewport, nullptr, &writeViewport},
    {nullptr, &classOf<KyDbHatch>, &kHatchMembers, &readHatch, nullptr, &writeHatch},
    {"IMAGE", nullptr, &kCommon, &checkImage, nullptr, nullptr},
    {nullptr, &classOf<KyDbTable>, &kTableMembers, &readTable, nullptr, &writeTable},
    {nullptr, &classOf<KyDbViewCallout>, &kViewCalloutMembers, &readViewCallout, nullptr,
     &writeViewCallout},
    {"POINTCLOUD", nullptr, &kCommon, &checkPointCloud, nullptr, nullptr},
};

const KyRefEntityRow* ofClass(const KyRxClass* entityClass) {
    for (const KyRefEntityRow& row : kRows) {
        if (row.entityClass != nullptr && row.entityClass() == entityClass) {
            return &row;
        }
    }
    return nullptr;
}

// ---- Members every entity has

void readCommon(KyRefReadContext& context, const KyRefJsonNode& node, KyDbEntity& entity) {
    KyDbDatabase* db = context.database();
    const auto layer = node.optional("layer");
    Check::check(entity.setLayer(layer ? context.record(db->layerTableId(), *layer, "layer")
                                       : context.record(db->layerTableId(), Std::kLayerZero, node,
                                                        "layer", "layer")),
                 layer ? *layer : node, "a layer");
    if (const auto color = node.optional("color")) {
        Check::check(entity.setColor(Forms::color(*color)), *color, "a colour");
    }
    const auto linetype = node.optional("linetype");
    Check::check(
        entity.setLinetype(linetype ? context.record(db->linetypeTableId(), *linetype, "linetype")
                                    : context.record(db->linetypeTableId(), Std::kByLayer, node,
                                                     "linetype", "linetype")),
        linetype ? *linetype : node, "a linetype");
    if (const auto weight = node.optional("lineweight")) {
        Check::check(entity.setLineWeight(Forms::lineWeight(*weight)), *weight, "a lineweight");
    }
    if (const auto transparency = node.optional("transparency")) {
        Check::check(entity.setTransparency(Forms::transparency(*transparency)), *transparency,
                     "a transparency");
    }
    optionalNumber(node, "linetypeScale", "a positive linetype scale",
                   [&](double scale) { return entity.setLinetypeScale(scale); });
    const auto material = node.optional("material");
    Check::check(entity.setMaterial(
                     material ? context.entry(db->materialDictionaryId(), *material, "material")
                              : context.entry(db->materialDictionaryId(), Std::kByLayer, node,
                                              "material", "material")),
                 material ? *material : node, "a material");
    if (const auto plotStyle = node.optional("plotStyle")) {
        Check::check(entity.setPlotStyleName(plotStyle->asText()), *plotStyle, "a plot style name");
    }
    entity.setVisibility(node.boolean("visible", true));
}

void writeCommon(KyRefWriteContext& context, const KyDbEntity& entity, KyRefJson& out) {
    out["layer"] = context.recordName(entity.layerId());
    out["color"] = Forms::color(entity.color());
    out["linetype"] = context.recordName(entity.linetypeId());
    out["lineweight"] = static_cast<int>(entity.lineWeight());
    out["transparency"] = Forms::transparency(entity.transparency());
    out["linetypeScale"] = entity.linetypeScale();
    out["material"] = context.entryKey(entity.materialId());
    out["plotStyle"] = kyrefUtf8(entity.plotStyleName());
    out["visible"] = entity.visibility();
}

// Closes an entity that the reader appended, on every path.
struct CloseEntity {
    void operator()(KyDbEntity* entity) const { entity->close(); }
};

}  // namespace

std::span<const KyRefEntityRow> KyRefEntityRows::rows() {
    return kRows;
}

std::string KyRefEntityRow::type() const {
    return entityClass != nullptr ? kyrefUtf8(entityClass()->dxfName()) : std::string(keptType);
}

const KyRefEntityRow* KyRefEntityRows::ofType(const std::string& type) {
    const KyString word = kyrefWide(type);
    for (const KyRefEntityRow& row : kRows) {
        if (row.entityClass != nullptr ? word == row.entityClass()->dxfName()
                                       : type == row.keptType) {
            return &row;
        }
    }
    return nullptr;
}

const KyRefMemberList& KyRefEntityRows::common() {
    return kCommon;
}

void KyRefEntityRows::read(KyRefReadContext& context, const KyRefJsonNode& node,
                           KyDbBlockTableRecord& block) {
    node.expectObject();
    const std::string type = node.required("type", "the type of the entity").asString();
    const KyRefEntityRow* row = ofType(type);
    const bool modelled = row != nullptr && row->entityClass != nullptr;
    std::unique_ptr<KyDbEntity> entity;
    KyRefDrawingExtras::Form form;
    if (modelled) {
        entity.reset(row->read(context, node));
        form = row->members->formOf(node.value(), {"type", "handle"});
    } else {
        if (row != nullptr) {
            row->read(context, node);
        }
        // Kept whole: what is not common to every entity is its data, and
        // the records it names are noted beside it.
        form = kCommon.formOf(node.value(), {"type", "handle"});
        form.references = context.takeReferences();
        auto unknown = std::make_unique<KyDbUnknownEntity>();
        unknown->setTypeName(kyrefWide(type));
        unknown->setData(form.unknown ? kyrefWide(form.unknown->dump()) : KyString(L"{}"));
        form.unknown.reset();
        entity = std::move(unknown);
    }
    readCommon(context, node, *entity);
    const KyRefJsonNode handleNode = node.required("handle", "a handle");
    const KyDbHandle handle = KyRefValueForms::handle(handleNode);
    KyDbObjectId id;
    const Kyro::ErrorStatus status = block.appendKyDbEntity(id, entity.get(), handle);
    if (status == Kyro::eHandleInUse) {
        handleNode.fail("the handle \"" + handleNode.asString() +
                        "\" is taken by another object; expected a handle of its own");
    }
    Check::check(status, node, "an entity the block can hold");
    const std::unique_ptr<KyDbEntity, CloseEntity> appended(entity.release());
    if (modelled && row->fill != nullptr) {
        row->fill(context, node, *appended);
    }
    context.keepSpellings(form, node);
    if (form.holdsAnything()) {
        context.extras().setForm(handle, std::move(form));
    }
}

KyRefJson KyRefEntityRows::write(KyRefWriteContext& context, KyDbObjectId id) {
    KyDbObjectPointer<KyDbEntity> entity(id, KyDb::kForRead);
    if (entity.openStatus() != Kyro::eOk) {
        return KyRefJson();
    }
    KyRefJson out = KyRefJson::object();
    const auto* unknown = kyrxCast<KyDbUnknownEntity>(entity.object());
    const KyRefEntityRow* row = unknown == nullptr ? ofClass(entity->isA()) : nullptr;
    if (unknown != nullptr) {
        out["type"] = kyrefUtf8(unknown->typeName());
    } else if (row != nullptr) {
        out["type"] = row->type();
    } else {
        out["type"] = kyrefUtf8(entity->isA()->name());
    }
    out["handle"] = Forms::handle(KyDbHandle(id.handle()));
    writeCommon(context, *entity.object(), out);
    if (row != nullptr) {
        row->write(context, *entity.object(), out);
        context.shape(out, id, *row->members);
        return out;
    }
    if (unknown != nullptr) {
        const KyRefJson data = KyRefJson::parse(unknown->data().utf8(), nullptr, false);
        if (data.is_object()) {
            KyRefMemberList::mergeUnknown(out, data);
        }
        // What the entity names goes by the name it has now: it may have been
        // renamed since the file was read. The shape below gives back the
        // file's spelling of a name that still names the same.
        if (const KyRefDrawingExtras::Form* kept = context.form(id)) {
            for (const KyRefDrawingExtras::Reference& reference : kept->references) {
                out[reference.member] = reference.entry ? context.entryKey(reference.id)
                                                        : context.recordName(reference.id);
            }
        }
    }
    context.shape(out, id, kCommon);
    return out;
}
