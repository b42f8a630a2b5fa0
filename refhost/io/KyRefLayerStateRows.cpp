#include "KyRefLayerStateRows.h"

#include <limits>
#include <memory>
#include <vector>

#include "KyRefMemberList.h"
#include "KyRefReadContext.h"
#include "KyRefValueForms.h"
#include "KyRefWriteContext.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbDictionary.h"
#include "db/KyDbDictionaryIterator.h"
#include "db/KyDbLayerState.h"
#include "db/KyDbLayerStateManager.h"
#include "db/KyDbObjectPointer.h"

namespace {

using Forms = KyRefValueForms;

const KyRefMemberList kStateMembers{
    {"name"},
    {"description", "\"\""},
    {"mask", "0"},
    {"layers", nullptr, false,
     "name off frozen locked color linetype lineweight transparency plotStyle plottable"},
};

// The sign bit a hidden state carries in the database; the file leaves it out.
constexpr int kSignBit = std::numeric_limits<int>::min();

// A name that must not be empty.
KyString nameOf(const KyRefJsonNode& node, const char* expected) {
    const KyString name = node.asText();
    if (name.isEmpty()) {
        node.fail(std::string("expected ") + expected + ", found an empty string");
    }
    return name;
}

KyDbLayerState::Layer readLayer(const KyRefJsonNode& node) {
    node.expectObject();
    KyDbLayerState::Layer layer;
    layer.name = nameOf(node.required("name", "the name of a layer"), "the name of a layer");
    layer.off = node.required("off", "true or false").asBool();
    layer.frozen = node.required("frozen", "true or false").asBool();
    layer.locked = node.required("locked", "true or false").asBool();
    layer.plottable = node.required("plottable", "true or false").asBool();
    layer.color = Forms::color(node.required("color", "a layer colour"), Forms::ColorUse::kLayer);
    layer.linetype =
        nameOf(node.required("linetype", "the name of a linetype"), "the name of a linetype");
    layer.lineWeight = Forms::lineWeight(node.required("lineweight", "a layer lineweight"),
                                         Forms::WeightUse::kLayer);
    const KyRefJsonNode transparency = node.required("transparency", "an alpha 0 to 255");
    layer.transparency = Forms::transparency(transparency);
    if (!layer.transparency.isByAlpha()) {
        transparency.fail("expected an alpha 0 to 255: a layer's transparency can't be " +
                          transparency.asString());
    }
    layer.plotStyle =
        nameOf(node.required("plotStyle", "the name of a plot style"), "the name of a plot style");
    return layer;
}

std::vector<KyDbLayerState::Layer> readLayers(const KyRefJsonNode& node) {
    node.expectArray();
    std::vector<KyDbLayerState::Layer> layers;
    for (std::size_t i = 0; i < node.size(); ++i) {
        const KyRefJsonNode item = node.item(i);
        KyDbLayerState::Layer layer = readLayer(item);
        for (const KyDbLayerState::Layer& earlier : layers) {
            if (earlier.name.compareNoCase(layer.name) == 0) {
                item.required("name", "the name of a layer")
                    .fail("the layer \"" + layer.name.utf8() +
                          "\" has a row already; expected each layer once (in any case)");
            }
        }
        layers.push_back(std::move(layer));
    }
    return layers;
}

void readState(KyRefReadContext& context, KyDbDictionary& dictionary, const KyRefJsonNode& node) {
    node.expectObject();
    const KyRefJsonNode nameNode = node.required("name", "the name of the layer state");
    const KyString name = nameOf(nameNode, "the name of the layer state");
    if (dictionary.has(name.kwszPtr())) {
        nameNode.fail("another layer state has the name \"" + name.utf8() +
                      "\"; expected a name of its own (in any case)");
    }
    auto state = std::make_unique<KyDbLayerState>();
    state->setDescription(node.text("description", L""));
    if (const auto mask = node.optional("mask")) {
        state->setMask(mask->asInteger(0, std::numeric_limits<int>::max()));
    }
    const KyRefJsonNode layers = node.required("layers", "an array of layers");
    KyRefReadContext::check(state->setLayers(readLayers(layers)), layers, "the layers of a state");
    KyDbObjectId id;
    KyRefReadContext::check(dictionary.setAt(name.kwszPtr(), state.get(), id), node,
                            "a layer state the drawing can hold");
    state.release()->close();
    context.keepForm(id, node, kStateMembers);
}

KyRefJson layerJson(const KyDbLayerState::Layer& layer) {
    return KyRefJson{
        {"name", kyrefUtf8(layer.name)},
        {"off", layer.off},
        {"frozen", layer.frozen},
        {"locked", layer.locked},
        {"color", Forms::color(layer.color)},
        {"linetype", kyrefUtf8(layer.linetype)},
        {"lineweight", static_cast<int>(layer.lineWeight)},
        {"transparency", Forms::transparency(layer.transparency)},
        {"plotStyle", kyrefUtf8(layer.plotStyle)},
        {"plottable", layer.plottable},
    };
}

}  // namespace

void KyRefLayerStateRows::read(KyRefReadContext& context, const KyRefJsonNode& node) {
    node.expectArray();
    if (node.size() == 0) {
        return;
    }
    KyDbLayerStateManager* manager = context.database()->getLayerStateManager();
    KyDbObjectPointer<KyDbDictionary> dictionary(manager->layerStatesDictionaryId(true),
                                                 KyDb::kForWrite);
    if (!dictionary) {
        node.fail("the drawing can't take layer states");
    }
    for (std::size_t i = 0; i < node.size(); ++i) {
        readState(context, *dictionary.object(), node.item(i));
    }
}

KyRefJson KyRefLayerStateRows::write(KyRefWriteContext& context) {
    KyRefJson states = KyRefJson::array();
    KyDbLayerStateManager* manager = context.database()->getLayerStateManager();
    KyDbObjectPointer<KyDbDictionary> dictionary(manager->layerStatesDictionaryId(false),
                                                 KyDb::kForRead);
    if (!dictionary) {
        return states;
    }
    const std::unique_ptr<KyDbDictionaryIterator> it(dictionary->newIterator());
    for (; !it->done(); it->next()) {
        KyDbObjectPointer<KyDbLayerState> state(it->objectId(), KyDb::kForRead);
        if (!state) {
            continue;
        }
        KyRefJson layers = KyRefJson::array();
        for (const KyDbLayerState::Layer& layer : state->layers()) {
            layers.push_back(layerJson(layer));
        }
        KyRefJson out{
            {"name", kyrefUtf8(it->name())},
            {"description", kyrefUtf8(state->description())},
            {"mask", state->mask() & ~kSignBit},
            {"layers", std::move(layers)},
        };
        context.shape(out, it->objectId(), kStateMembers);
        states.push_back(std::move(out));
    }
    return states;
}
