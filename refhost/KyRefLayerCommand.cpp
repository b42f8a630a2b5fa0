#include "KyRefLayerCommand.h"

#include <algorithm>
#include <iterator>
#include <vector>

#include "KyRefCommandContext.h"
#include "KyRefHost.h"
#include "KyRefLanguage.h"
#include "KyRefLayerAnswers.h"
#include "KyRefLayerFilters.h"
#include "KyRefLayerNameList.h"
#include "KyRefReadAccess.h"
#include "KyRefTransparencyText.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbLayerStateManager.h"
#include "db/KyDbLayerTableRecord.h"
#include "db/KyDbObjectPointer.h"
#include "db/KyDbSymbolTable.h"

namespace {

// What one run of the command works with.
struct LayerRun {
    KyRefCommandContext& context;
    KyRefLayerAnswers answers;
    KyString filter;  // the layer filter to make current at the end
};

using Layers = std::vector<KyDbObjectId>;

KyString layerName(KyDbObjectId id) {
    KyRefReadAccess<KyDbLayerTableRecord> layer(id);
    return layer ? layer->name() : KyString();
}

// Opens each layer for write and lets `change` change it. A layer that can't
// be opened, or that refuses the change, fails the command.
template <typename Change>
void changeLayers(KyRefCommandContext& context, const Layers& layers, Change&& change) {
    for (const KyDbObjectId& id : layers) {
        KyDbObjectPointer<KyDbLayerTableRecord> layer(id, KyDb::kForWrite);
        if (!layer || change(*layer.object()) != Kyro::eOk) {
            layer.close();
            const KyString name = layerName(id);
            context.fail(L"Cannot change layer \"%ls\".", name.kwszPtr());
        }
    }
}

// The layer named `name`, null when the drawing has none.
KyDbObjectId findLayer(KyDbDatabase* database, const KyString& name) {
    KyDbObjectId id;
    KyRefReadAccess<KyDbSymbolTable> table(database->layerTableId());
    if (table) {
        table->getAt(name, id);
    }
    return id;
}

// The record checks a name it is given: an empty name, one too long, or one
// with a character that names can't hold is refused.
bool isValidName(const KyString& name) {
    KyDbLayerTableRecord probe;
    return probe.setName(name) == Kyro::eOk;
}

// A new layer with the properties of a new layer.
KyDbObjectId createLayer(KyRefCommandContext& context, const KyString& name) {
    if (!isValidName(name)) {
        context.fail(L"Invalid layer name \"%ls\".", name.kwszPtr());
    }
    KyDbObjectPointer<KyDbSymbolTable> table(context.database()->layerTableId(), KyDb::kForWrite);
    auto* layer = new KyDbLayerTableRecord();
    layer->setName(name);
    KyDbObjectId id;
    if (!table || table->add(id, layer) != Kyro::eOk) {
        delete layer;
        table.close();
        context.fail(L"Cannot create layer \"%ls\".", name.kwszPtr());
    }
    layer->close();
    return id;
}

void makeCurrent(KyRefCommandContext& context, KyDbObjectId id) {
    KyString name;
    {
        KyRefReadAccess<KyDbLayerTableRecord> layer(id);
        name = layer->name();
        if (layer->isFrozen()) {
            context.fail(L"Cannot set the frozen layer \"%ls\" current.", name.kwszPtr());
        }
    }
    if (context.database()->setClayer(id) != Kyro::eOk) {
        context.fail(L"Cannot set layer \"%ls\" current.", name.kwszPtr());
    }
}

KyString readLayerName(LayerRun& run, const wchar_t* prompt) {
    return KyRefCommandContext::literal(run.context.readLine(prompt));
}

// ---- The options

void list(LayerRun& run) {
    KyString answer = run.context.readLine(L"Enter layer name(s) to list <*>: ");
    if (answer.isEmpty()) {
        answer = L"*";
    }
    const Layers layers = KyRefLayerNameList::resolve(run.context, answer);
    run.context.message(L"Layer name: state, color, linetype, lineweight");
    for (const KyDbObjectId& id : layers) {
        KyRefReadAccess<KyDbLayerTableRecord> layer(id);
        if (!layer) {
            continue;
        }
        run.context.message(L"%ls: %ls %ls %ls, %ls, %ls, %ls", layer->name().kwszPtr(),
                            layer->isOff() ? L"off" : L"on",
                            layer->isFrozen() ? L"frozen" : L"thawed",
                            layer->isLocked() ? L"locked" : L"unlocked",
                            layer->color().colorNameForDisplay().kwszPtr(),
                            KyRefLayerAnswers::linetypeName(layer->linetypeObjectId()).kwszPtr(),
                            KyRefLayerAnswers::lineWeightText(layer->lineWeight()).kwszPtr());
    }
}

void make(LayerRun& run) {
    const KyString name =
        readLayerName(run, L"Enter name for new layer (becomes the current layer): ");
    if (name.isEmpty()) {
        return;
    }
    KyDbObjectId id = findLayer(run.context.database(), name);
    if (id.isNull()) {
        id = createLayer(run.context, name);
    }
    makeCurrent(run.context, id);
}

void set(LayerRun& run) {
    const KyString name = readLayerName(run, L"Enter layer name to make current: ");
    if (name.isEmpty()) {
        return;
    }
    const KyDbObjectId id = findLayer(run.context.database(), name);
    if (id.isNull()) {
        run.context.fail(L"Cannot find layer \"%ls\".", name.kwszPtr());
    }
    makeCurrent(run.context, id);
}

void create(LayerRun& run) {
    const KyString answer = run.context.readLine(L"Enter name list for new layer(s): ");
    std::vector<KyString> names;
    for (const KyRefNamePattern& typed : KyRefLayerNameList::read(answer)) {
        names.push_back(typed.name());
    }
    for (const KyString& name : names) {
        if (!isValidName(name)) {
            run.context.fail(L"Invalid layer name \"%ls\".", name.kwszPtr());
        }
    }
    for (const KyString& name : names) {
        if (findLayer(run.context.database(), name).isNull()) {
            createLayer(run.context, name);
        } else {
            run.context.message(L"Layer \"%ls\" already exists.", name.kwszPtr());
        }
    }
}

void turnOn(LayerRun& run) {
    Layers layers;
    if (run.answers.readLayers(L"Enter name list of layer(s) to turn on: ", layers)) {
        changeLayers(run.context, layers,
                     [](KyDbLayerTableRecord& layer) { return layer.setIsOff(false); });
    }
}

const KyRefKeyword kYesNo[] = {
    {L"Yes", L"Ja"},
    {L"No", L"Nein"},
};
constexpr int kYes = 0;

void turnOff(LayerRun& run) {
    Layers layers;
    if (!run.answers.readLayers(L"Enter name list of layer(s) to turn off: ", layers)) {
        return;
    }
    const KyDbObjectId current = run.context.database()->clayer();
    if (std::find(layers.begin(), layers.end(), current) != layers.end()) {
        const KyString prompt = KyString::formatted(
            L"Really want layer current off? %ls <%ls>: ", KyRefKeywords::options(kYesNo).kwszPtr(),
            KyRefLanguage::pick(kYesNo[1].global, kYesNo[1].local));
        if (run.answers.readOption(prompt, kYesNo) != kYes) {
            std::erase(layers, current);
        }
    }
    changeLayers(run.context, layers,
                 [](KyDbLayerTableRecord& layer) { return layer.setIsOff(true); });
}

void color(LayerRun& run) {
    KyCmColor color;
    if (!run.answers.readColor(color)) {
        return;
    }
    const KyString prompt = KyString::formatted(L"Enter name list of layer(s) for color %ls: ",
                                                color.colorNameForDisplay().kwszPtr());
    Layers layers;
    if (run.answers.readLayers(prompt, layers)) {
        changeLayers(run.context, layers,
                     [&color](KyDbLayerTableRecord& layer) { return layer.setColor(color); });
    }
}

void linetype(LayerRun& run) {
    KyDbObjectId linetype;
    if (!run.answers.readLinetype(linetype)) {
        return;
    }
    const KyString prompt =
        KyString::formatted(L"Enter name list of layer(s) for linetype \"%ls\": ",
                            KyRefLayerAnswers::linetypeName(linetype).kwszPtr());
    Layers layers;
    if (run.answers.readLayers(prompt, layers)) {
        changeLayers(run.context, layers, [linetype](KyDbLayerTableRecord& layer) {
            return layer.setLinetypeObjectId(linetype);
        });
    }
}

void lineWeight(LayerRun& run) {
    KyDb::LineWeight weight = KyDb::kLnWtByLwDefault;
    if (!run.answers.readLineWeight(weight)) {
        return;
    }
    const KyString prompt =
        KyString::formatted(L"Enter name list of layer(s) for lineweight %ls: ",
                            KyRefLayerAnswers::lineWeightText(weight).kwszPtr());
    Layers layers;
    if (run.answers.readLayers(prompt, layers)) {
        changeLayers(run.context, layers,
                     [weight](KyDbLayerTableRecord& layer) { return layer.setLineWeight(weight); });
    }
}

void transparency(LayerRun& run) {
    KyCmTransparency transparency;
    if (!run.answers.readTransparency(transparency)) {
        return;
    }
    const KyString prompt =
        KyString::formatted(L"Enter name list of layer(s) for transparency %ls: ",
                            KyRefTransparencyText::format(transparency).kwszPtr());
    Layers layers;
    if (run.answers.readLayers(prompt, layers)) {
        changeLayers(run.context, layers, [&transparency](KyDbLayerTableRecord& layer) {
            return layer.setTransparency(transparency);
        });
    }
}

const KyRefKeyword kPlotKeywords[] = {
    {L"Plot", L"Plotten"},
    {L"No plot", L"Nicht plotten"},
};
constexpr int kNoPlot = 1;

void plot(LayerRun& run) {
    const KyString prompt = KyString::formatted(
        L"Enter a plotting preference %ls <%ls>: ", KyRefKeywords::options(kPlotKeywords).kwszPtr(),
        KyRefLanguage::pick(kPlotKeywords[0].global, kPlotKeywords[0].local));
    const bool plottable = run.answers.readOption(prompt, kPlotKeywords) != kNoPlot;
    Layers layers;
    if (run.answers.readLayers(L"Enter layer name(s) for this plot preference: ", layers)) {
        changeLayers(run.context, layers, [plottable](KyDbLayerTableRecord& layer) {
            return layer.setIsPlottable(plottable);
        });
    }
}

void plotStyle(LayerRun& run) {
    KyString style;
    if (!run.answers.readPlotStyle(style)) {
        return;
    }
    const KyString prompt = KyString::formatted(
        L"Enter name list of layer(s) for plot style \"%ls\": ", style.kwszPtr());
    Layers layers;
    if (run.answers.readLayers(prompt, layers)) {
        changeLayers(run.context, layers, [&style](KyDbLayerTableRecord& layer) {
            return layer.setPlotStyleName(style);
        });
    }
}

void freeze(LayerRun& run) {
    Layers layers;
    if (!run.answers.readLayers(L"Enter name list of layer(s) to freeze: ", layers)) {
        return;
    }
    const KyDbObjectId current = run.context.database()->clayer();
    if (std::erase(layers, current) > 0) {
        run.context.message(L"Cannot freeze layer \"%ls\": it is the current layer.",
                            layerName(current).kwszPtr());
    }
    changeLayers(run.context, layers,
                 [](KyDbLayerTableRecord& layer) { return layer.setIsFrozen(true); });
}

void thaw(LayerRun& run) {
    Layers layers;
    if (run.answers.readLayers(L"Enter name list of layer(s) to thaw: ", layers)) {
        changeLayers(run.context, layers,
                     [](KyDbLayerTableRecord& layer) { return layer.setIsFrozen(false); });
    }
}

void lock(LayerRun& run) {
    Layers layers;
    if (run.answers.readLayers(L"Enter name list of layer(s) to lock: ", layers)) {
        changeLayers(run.context, layers,
                     [](KyDbLayerTableRecord& layer) { return layer.setIsLocked(true); });
    }
}

void unlock(LayerRun& run) {
    Layers layers;
    if (run.answers.readLayers(L"Enter name list of layer(s) to unlock: ", layers)) {
        changeLayers(run.context, layers,
                     [](KyDbLayerTableRecord& layer) { return layer.setIsLocked(false); });
    }
}

void describe(LayerRun& run) {
    const KyString description = run.context.readLine(L"Enter layer description: ");
    if (description.isEmpty()) {
        return;
    }
    Layers layers;
    if (run.answers.readLayers(L"Enter name list of layer(s) to apply description: ", layers)) {
        changeLayers(run.context, layers, [&description](KyDbLayerTableRecord& layer) {
            return layer.setDescription(description);
        });
    }
}

const KyRefKeyword kFilterKeywords[] = {
    {L"Set", L"Setzen"},
};

void filter(LayerRun& run) {
    const KyString prompt = KyString::formatted(L"Enter a layer filter option %ls: ",
                                                KyRefKeywords::options(kFilterKeywords).kwszPtr());
    if (run.answers.readOption(prompt, kFilterKeywords) < 0) {
        return;
    }
    const KyString name = readLayerName(run, L"Enter name of the layer filter to make current: ");
    if (name.isEmpty()) {
        return;
    }
    KyString spelling;
    if (!KyRefLayerFilters::find(run.context.database(), name, spelling)) {
        run.context.fail(L"Cannot find layer filter \"%ls\".", name.kwszPtr());
    }
    run.filter = spelling;
}

const KyRefKeyword kStateKeywords[] = {
    {L"Save", L"Speichern"},
    {L"Restore", L"Wiederherstellen"},
    {L"Delete", L"Loeschen"},
};
constexpr int kSaveState = 0;
constexpr int kRestoreState = 1;

// The layer states of the drawing: saves the layers as a state (all their
// properties; over a hidden state of the name, a new state), restores one
// with the layer service's restore flags, or deletes one. States go by the
// viewport the host shows, if any.
void state(LayerRun& run) {
    const KyString prompt = KyString::formatted(L"Enter a layer state option %ls: ",
                                                KyRefKeywords::options(kStateKeywords).kwszPtr());
    const int option = run.answers.readOption(prompt, kStateKeywords);
    if (option < 0) {
        return;
    }
    static const wchar_t* const kNamePrompts[] = {
        L"Enter name of the layer state to save: ",
        L"Enter name of the layer state to restore: ",
        L"Enter name of the layer state to delete: ",
    };
    const KyString name = readLayerName(run, kNamePrompts[option]);
    if (name.isEmpty()) {
        return;
    }
    KyRefHost& host = run.context.host();
    KyDbObjectId viewportId;
    if (KyRefViewportService* viewports = host.viewportService()) {
        viewports->viewportId(viewportId);
    }
    KyDbLayerStateManager* manager = run.context.database()->getLayerStateManager();
    if (option == kSaveState) {
        // A hidden state is none that the user sees: a state saved under its
        // name replaces it, as a new state, so that whoever lists the states
        // (and leaves hidden ones alone) hears of it through their dictionary.
        int mask = 0;
        if (manager->getLayerStateMask(name, mask) == Kyro::eOk && mask < 0 &&
            manager->deleteLayerState(name) != Kyro::eOk) {
            run.context.fail(L"Cannot save layer state \"%ls\".", name.kwszPtr());
        }
        if (manager->saveLayerState(name, 0, viewportId) != Kyro::eOk) {
            run.context.fail(L"Cannot save layer state \"%ls\".", name.kwszPtr());
        }
        return;
    }
    if (!manager->hasLayerState(name)) {
        run.context.fail(L"Cannot find layer state \"%ls\".", name.kwszPtr());
    }
    if (option == kRestoreState) {
        KyRefLayerService* layers = host.layerService();
        const int flags = layers != nullptr ? layers->restoreFlags() : 0;
        if (manager->restoreLayerState(name, viewportId, flags) != Kyro::eOk) {
            run.context.fail(L"Cannot restore layer state \"%ls\".", name.kwszPtr());
        }
    } else if (manager->deleteLayerState(name) != Kyro::eOk) {
        run.context.fail(L"Cannot delete layer state \"%ls\".", name.kwszPtr());
    }
}

// The options in the order the prompt shows them, and what each does.
const KyRefKeyword kOptions[] = {
    {L"?", L"?"},
    {L"Make", L"Machen"},
    {L"Set", L"Setzen"},
    {L"New", L"Neu"},
    {L"ON", L"EIN"},
    {L"OFF", L"AUS"},
    {L"Color", L"Farbe"},
    {L"Ltype", L"LTyp"},
    {L"LWeight", L"LStaerke"},
    {L"TRansparency", L"TRansparenz"},
    {L"Plot", L"Plotten"},
    {L"PStyle", L"PStil"},
    {L"Freeze", L"FRieren"},
    {L"Thaw", L"Tauen"},
    {L"LOck", L"SPerren"},
    {L"Unlock", L"ENtsperren"},
    {L"Description", L"Beschreibung"},
    {L"Filter", L"FIlter"},
    {L"STate", L"ZUstand"},
};
void (*const kRunOption[])(LayerRun&) = {
    &list,     &make,       &set,          &create, &turnOn,    &turnOff, &color,
    &linetype, &lineWeight, &transparency, &plot,   &plotStyle, &freeze,  &thaw,
    &lock,     &unlock,     &describe,     &filter, &state,
};
static_assert(std::size(kOptions) == std::size(kRunOption));

}  // namespace

void KyRefLayerCommand::run(KyRefCommandContext& context) {
    LayerRun run{context, KyRefLayerAnswers(context), KyString()};
    context.message(L"Current layer: \"%ls\"", layerName(context.database()->clayer()).kwszPtr());
    const KyString prompt =
        KyString::formatted(L"Enter an option %ls: ", KyRefKeywords::options(kOptions).kwszPtr());
    for (;;) {
        const int option = run.answers.readOption(prompt, kOptions);
        if (option < 0) {
            break;
        }
        kRunOption[option](run);
    }
    if (!run.filter.isEmpty()) {
        KyRefLayerFilters::setCurrent(context.database(), run.filter);
    }
}
