#include "KyRefChPropCommand.h"

#include <vector>

#include "KyRefColorText.h"
#include "KyRefCommandContext.h"
#include "KyRefGeometryInput.h"
#include "KyRefLineweightText.h"
#include "KyRefNamedItem.h"
#include "KyRefObjectSelection.h"
#include "KyRefReservedWords.h"
#include "KyRefTransparencyText.h"
#include "db/KyCmColorBook.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbEntity.h"

namespace {

using Ids = std::vector<KyDbObjectId>;

// The record or entry named at `prompt` in `container`; null for an empty
// answer. A name the drawing lacks ends the command.
KyDbObjectId readItem(KyRefCommandContext& context, const wchar_t* prompt, KyDbObjectId container,
                      const wchar_t* what) {
    const KyString name = context.readName(prompt);
    if (name.isEmpty()) {
        return KyDbObjectId();
    }
    const KyDbObjectId id = KyRefNamedItem::find(container, name);
    if (id.isNull()) {
        context.fail(L"Cannot find %ls \"%ls\".", what, name.kwszPtr());
    }
    return id;
}

const KyRefKeyword kColorOptions[] = {
    {L"Truecolor", L"Echtfarbe"},
    {L"COlorbook", L"FArbbuch"},
};
constexpr int kTrueColor = 0;

KyCmColor readTrueColor(KyRefCommandContext& context) {
    const KyString answer = context.readWord(L"Enter TRUECOLOR value (Red,Green,Blue): ");
    KyCmColor color;
    if (!KyRefColorText::parse(answer, color) || !color.isByColor()) {
        context.fail(L"Requires three values from 0 to 255 (Red,Green,Blue).");
    }
    return color;
}

KyCmColor readBookColor(KyRefCommandContext& context) {
    const KyString book = context.readLine(L"Enter Color Book name: ");
    const KyString name = context.readLine(L"Enter color name: ");
    KyCmColor color;
    if (KyCmColorBook::findColor(book, name, color) != Kyro::eOk) {
        context.fail(L"Cannot find color \"%ls\" in color book \"%ls\".", name.kwszPtr(),
                     book.kwszPtr());
    }
    return color;
}

void changeColor(KyRefCommandContext& context, const Ids& ids) {
    const KyString answer = context.readLine(L"Enter new color [Truecolor/COlorbook]: ");
    if (answer.isEmpty()) {
        return;
    }
    KyCmColor color;
    const int option = KyRefKeywords::match(kColorOptions, answer);
    if (option >= 0) {
        color = option == kTrueColor ? readTrueColor(context) : readBookColor(context);
    } else if (!KyRefColorText::parse(answer, color) &&
               KyCmColorBook::findColor(answer, color) != Kyro::eOk) {
        context.fail(L"Invalid color \"%ls\".", answer.kwszPtr());
    }
    KyRefObjectSelection::change<KyDbEntity>(ids,
                                             [&](KyDbEntity& entity) { entity.setColor(color); });
}

void changeLayer(KyRefCommandContext& context, const Ids& ids) {
    const KyDbObjectId layer =
        readItem(context, L"Enter new layer name: ", context.database()->layerTableId(), L"layer");
    if (!layer.isNull()) {
        KyRefObjectSelection::change<KyDbEntity>(
            ids, [&](KyDbEntity& entity) { entity.setLayer(layer); });
    }
}

void changeLinetype(KyRefCommandContext& context, const Ids& ids) {
    const KyDbObjectId linetype = readItem(context, L"Enter new linetype name: ",
                                           context.database()->linetypeTableId(), L"linetype");
    if (!linetype.isNull()) {
        KyRefObjectSelection::change<KyDbEntity>(
            ids, [&](KyDbEntity& entity) { entity.setLinetype(linetype); });
    }
}

void changeLinetypeScale(KyRefCommandContext& context, const Ids& ids) {
    const std::optional<double> scale = KyRefGeometryInput::readNumberOrEnd(
        context, L"Specify new linetype scale: ", KyRefGeometryInput::Range::kPositive);
    if (scale.has_value()) {
        KyRefObjectSelection::change<KyDbEntity>(
            ids, [&](KyDbEntity& entity) { entity.setLinetypeScale(*scale); });
    }
}

void changeLineweight(KyRefCommandContext& context, const Ids& ids) {
    const KyString answer = context.readWord(L"Enter new lineweight: ");
    if (answer.isEmpty()) {
        return;
    }
    KyDb::LineWeight weight = KyDb::kLnWtByLayer;
    if (!KyRefLineweightText::parse(answer, weight)) {
        context.fail(L"Invalid lineweight \"%ls\".", answer.kwszPtr());
    }
    KyRefObjectSelection::change<KyDbEntity>(
        ids, [&](KyDbEntity& entity) { entity.setLineWeight(weight); });
}

void changeThickness(KyRefCommandContext& context, const Ids&) {
    if (KyRefGeometryInput::readNumberOrEnd(context, L"Specify new thickness: ",
                                            KyRefGeometryInput::Range::kAny)
            .has_value()) {
        context.message(L"The objects of this host have no thickness.");
    }
}

void changeTransparency(KyRefCommandContext& context, const Ids& ids) {
    const KyString answer =
        context.readWord(L"Enter transparency value [ByLayer/ByBlock] (0-90): ");
    if (answer.isEmpty()) {
        return;
    }
    KyCmTransparency transparency;
    if (!KyRefTransparencyText::parse(answer, transparency)) {
        context.fail(L"Requires ByLayer, ByBlock or a whole number from 0 to %d.",
                     KyRefTransparencyText::kMaximumPercent);
    }
    KyRefObjectSelection::change<KyDbEntity>(
        ids, [&](KyDbEntity& entity) { entity.setTransparency(transparency); });
}

void changeMaterial(KyRefCommandContext& context, const Ids& ids) {
    const KyDbObjectId material = readItem(context, L"Enter new material name: ",
                                           context.database()->materialDictionaryId(), L"material");
    if (!material.isNull()) {
        KyRefObjectSelection::change<KyDbEntity>(
            ids, [&](KyDbEntity& entity) { entity.setMaterial(material); });
    }
}

void changePlotStyle(KyRefCommandContext& context, const Ids& ids) {
    KyDbDatabase* database = context.database();
    const KyString name = context.readName(L"Enter plot style: ");
    if (name.isEmpty()) {
        return;
    }
    if (database->plotStyleMode()) {
        context.fail(L"The drawing plots by colour: its objects have no plot styles.");
    }
    KyString style;
    if (KyRefReservedWords::matches(name, KyRefReservedWords::kByLayer)) {
        style = KyRefReservedWords::global(KyRefReservedWords::kByLayer);
    } else if (KyRefReservedWords::matches(name, KyRefReservedWords::kByBlock)) {
        style = KyRefReservedWords::global(KyRefReservedWords::kByBlock);
    } else {
        const KyDbObjectId container = database->plotStyleNameDictionaryId();
        style = KyRefNamedItem::nameOf(container, KyRefNamedItem::find(container, name));
        if (style.isEmpty()) {
            context.fail(L"Cannot find plot style \"%ls\".", name.kwszPtr());
        }
    }
    KyRefObjectSelection::change<KyDbEntity>(
        ids, [&](KyDbEntity& entity) { entity.setPlotStyleName(style); });
}

const KyRefObjectSelection::Property kProperties[] = {
    {{L"Color", L"Farbe"}, &changeColor},
    {{L"LAyer", L"LAyer"}, &changeLayer},
    {{L"LType", L"LTyp"}, &changeLinetype},
    {{L"ltScale", L"LTFaktor"}, &changeLinetypeScale},
    {{L"LWeight", L"LStaerke"}, &changeLineweight},
    {{L"Thickness", L"Objekthoehe"}, &changeThickness},
    {{L"TRansparency", L"TRansparenz"}, &changeTransparency},
    {{L"Material", L"MAterial"}, &changeMaterial},
    {{L"PLotstyle", L"PLotstil"}, &changePlotStyle},
};

}  // namespace

void KyRefChPropCommand::run(KyRefCommandContext& context) {
    KyRefObjectSelection::changeProperties(context, kProperties);
}
