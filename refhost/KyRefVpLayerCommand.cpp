#include "KyRefVpLayerCommand.h"

#include <iterator>
#include <vector>

#include "KyRefCommandContext.h"
#include "KyRefHost.h"
#include "KyRefLanguage.h"
#include "KyRefLayerAnswers.h"
#include "KyRefReadAccess.h"
#include "KyRefTransparencyText.h"
#include "KyRefViewportService.h"
#include "db/KyDbBlockTableRecord.h"
#include "db/KyDbBlockTableRecordIterator.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbLayerTableRecord.h"
#include "db/KyDbLayout.h"
#include "db/KyDbObjectPointer.h"
#include "db/KyDbViewport.h"

namespace {

using Ids = std::vector<KyDbObjectId>;

// What one run of the command works with.
struct VpRun {
    KyRefCommandContext& context;
    KyRefLayerAnswers answers;
};

bool isViewport(KyDbObjectId id) {
    return id.isValid() && !id.isErased() && id.objectClass() != nullptr &&
           id.objectClass()->isDerivedFrom(KyDbViewport::desc());
}

// The viewports of the current layout, the paper left out.
Ids layoutViewports(KyDbDatabase* database) {
    Ids viewports;
    KyRefReadAccess<KyDbLayout> layout(kydbCurrentLayoutId(database));
    if (!layout) {
        return viewports;
    }
    KyRefReadAccess<KyDbBlockTableRecord> block(layout->getBlockTableRecordId());
    if (!block) {
        return viewports;
    }
    for (KyDbBlockTableRecordIterator it(block.object()); !it.done(); it.step()) {
        KyDbObjectId id;
        it.getEntityId(id);
        if (!isViewport(id)) {
            continue;
        }
        KyRefReadAccess<KyDbViewport> viewport(id);
        if (viewport && !viewport->isPaperViewport()) {
            viewports.push_back(id);
        }
    }
    return viewports;
}

KyDbObjectId currentViewport(KyRefCommandContext& context) {
    KyDbObjectId id;
    if (KyRefViewportService* service = context.host().viewportService()) {
        service->viewportId(id);
    }
    if (id.isNull() || id.database() != context.database() || !isViewport(id)) {
        context.fail(L"No viewport is current.");
    }
    return id;
}

const KyRefKeyword kViewportKeywords[] = {
    {L"All", L"Alle"},
    {L"Select", L"Waehlen"},
    {L"Current", L"AKtuell"},
};
constexpr int kAll = 0;
constexpr int kSelect = 1;

// The viewports an answer names; false when none were selected.
bool readViewports(VpRun& run, Ids& viewports) {
    const KyRefKeyword& current = kViewportKeywords[2];
    const KyString prompt = KyString::formatted(L"Enter an option %ls <%ls>: ",
                                                KyRefKeywords::options(kViewportKeywords).kwszPtr(),
                                                KyRefLanguage::pick(current.global, current.local));
    switch (run.answers.readOption(prompt, kViewportKeywords)) {
        case kAll:
            viewports = layoutViewports(run.context.database());
            if (viewports.empty()) {
                run.context.fail(L"The layout has no viewports.");
            }
            return true;
        case kSelect: {
            const Ids selected = run.context.readEntities(L"Select viewports: ");
            for (const KyDbObjectId& id : selected) {
                if (isViewport(id)) {
                    viewports.push_back(id);
                }
            }
            if (viewports.size() < selected.size()) {
                run.context.message(L"%d selected objects were not viewports.",
                                    static_cast<int>(selected.size() - viewports.size()));
            }
            return !viewports.empty();
        }
        default:
            viewports.push_back(currentViewport(run.context));
            return true;
    }
}

KyString layerName(KyDbObjectId id) {
    KyRefReadAccess<KyDbLayerTableRecord> layer(id);
    return layer ? layer->name() : KyString();
}

// Reads the layers and the viewports, and lets `change` change each layer
// in each viewport. A layer that refuses fails the command.
template <typename Change>
void overrideLayers(VpRun& run, const KyString& prompt, Change&& change) {
    Ids layers;
    Ids viewports;
    if (!run.answers.readLayers(prompt, layers) || !readViewports(run, viewports)) {
        return;
    }
    for (const KyDbObjectId& id : layers) {
        KyDbObjectPointer<KyDbLayerTableRecord> layer(id, KyDb::kForWrite);
        for (const KyDbObjectId& viewport : viewports) {
            if (!layer || change(*layer.object(), viewport) != Kyro::eOk) {
                layer.close();
                run.context.fail(L"Cannot change layer \"%ls\" in the viewport.",
                                 layerName(id).kwszPtr());
            }
        }
    }
}

// Reads the layers and the viewports, and freezes or thaws the layers in
// each viewport.
void freezeLayers(VpRun& run, const wchar_t* prompt, bool freezing) {
    Ids layers;
    Ids viewports;
    if (!run.answers.readLayers(prompt, layers) || !readViewports(run, viewports)) {
        return;
    }
    KyArray<KyDbObjectId> ids;
    for (const KyDbObjectId& id : layers) {
        ids.append(id);
    }
    for (const KyDbObjectId& id : viewports) {
        KyDbObjectPointer<KyDbViewport> viewport(id, KyDb::kForWrite);
        const Kyro::ErrorStatus status = !viewport
                                             ? viewport.openStatus()
                                             : (freezing ? viewport->freezeLayersInViewport(ids)
                                                         : viewport->thawLayersInViewport(ids));
        if (status != Kyro::eOk) {
            viewport.close();
            run.context.fail(L"Cannot change the layers of the viewport.");
        }
    }
}

// ---- The options

void color(VpRun& run) {
    KyCmColor color;
    if (run.answers.readColor(color)) {
        overrideLayers(run,
                       KyString::formatted(L"Enter layer name(s) for viewport color %ls: ",
                                           color.colorNameForDisplay().kwszPtr()),
                       [&color](KyDbLayerTableRecord& layer, KyDbObjectId viewport) {
                           return layer.setColor(color, viewport);
                       });
    }
}

void linetype(VpRun& run) {
    KyDbObjectId linetype;
    if (run.answers.readLinetype(linetype)) {
        overrideLayers(run,
                       KyString::formatted(L"Enter layer name(s) for viewport linetype \"%ls\": ",
                                           KyRefLayerAnswers::linetypeName(linetype).kwszPtr()),
                       [linetype](KyDbLayerTableRecord& layer, KyDbObjectId viewport) {
                           return layer.setLinetypeObjectId(linetype, viewport);
                       });
    }
}

void lineWeight(VpRun& run) {
    KyDb::LineWeight weight = KyDb::kLnWtByLwDefault;
    if (run.answers.readLineWeight(weight)) {
        overrideLayers(run,
                       KyString::formatted(L"Enter layer name(s) for viewport lineweight %ls: ",
                                           KyRefLayerAnswers::lineWeightText(weight).kwszPtr()),
                       [weight](KyDbLayerTableRecord& layer, KyDbObjectId viewport) {
                           return layer.setLineWeight(weight, viewport);
                       });
    }
}

void transparency(VpRun& run) {
    KyCmTransparency transparency;
    if (run.answers.readTransparency(transparency)) {
        overrideLayers(run,
                       KyString::formatted(L"Enter layer name(s) for viewport transparency %ls: ",
                                           KyRefTransparencyText::format(transparency).kwszPtr()),
                       [&transparency](KyDbLayerTableRecord& layer, KyDbObjectId viewport) {
                           return layer.setTransparency(transparency, viewport);
                       });
    }
}

void plotStyle(VpRun& run) {
    KyString style;
    if (run.answers.readPlotStyle(style)) {
        overrideLayers(run,
                       KyString::formatted(L"Enter layer name(s) for viewport plot style \"%ls\": ",
                                           style.kwszPtr()),
                       [&style](KyDbLayerTableRecord& layer, KyDbObjectId viewport) {
                           return layer.setPlotStyleName(style, viewport);
                       });
    }
}

void freeze(VpRun& run) {
    freezeLayers(run, L"Enter layer name(s) to freeze in viewports: ", true);
}

void thaw(VpRun& run) {
    freezeLayers(run, L"Enter layer name(s) to thaw in viewports: ", false);
}

// The options in the order the prompt shows them, and what each does.
const KyRefKeyword kOptions[] = {
    {L"Color", L"Farbe"},
    {L"Ltype", L"LTyp"},
    {L"LWeight", L"LStaerke"},
    {L"PStyle", L"PStil"},
    {L"TRansparency", L"TRansparenz"},
    {L"Freeze", L"FRieren"},
    {L"Thaw", L"Tauen"},
};
void (*const kRunOption[])(VpRun&) = {
    &color, &linetype, &lineWeight, &plotStyle, &transparency, &freeze, &thaw,
};
static_assert(std::size(kOptions) == std::size(kRunOption));

}  // namespace

void KyRefVpLayerCommand::run(KyRefCommandContext& context) {
    if (context.database()->tilemode()) {
        context.fail(L"VPLAYER works only in a layout: set TILEMODE to 0 first.");
    }
    VpRun run{context, KyRefLayerAnswers(context)};
    const KyString prompt =
        KyString::formatted(L"Enter an option %ls: ", KyRefKeywords::options(kOptions).kwszPtr());
    for (;;) {
        const int option = run.answers.readOption(prompt, kOptions);
        if (option < 0) {
            return;
        }
        kRunOption[option](run);
    }
}
