#include "KySampleDrawing.h"

#include "KySampleBlocks.h"
#include "KySampleHandles.h"
#include "KySampleObjects.h"
#include "KySampleTables.h"

namespace {

using Json = KyRefJson;

Json header() {
    return Json{
        {"CLAYER", "Walls"},
        {"CECOLOR", 256},
        {"CELTYPE", "ByLayer"},
        {"CELWEIGHT", -1},
        {"CETRANSPARENCY", "ByLayer"},
        {"TEXTSTYLE", "Notes"},
        {"DIMSTYLE", "ISO-25"},
        {"CMATERIAL", "ByLayer"},
        {"TEXTSIZE", 2.5},
        {"LTSCALE", 1.0},
        {"CELTSCALE", 1.0},
        {"TILEMODE", 1},
        {"PSTYLEMODE", 0},
        {"LUNITS", 2},
        {"LUPREC", 4},
        {"AUNITS", 0},
        {"AUPREC", 0},
        {"INSUNITS", 4},
        {"MEASUREMENT", 1},
        {"LIMMIN", {0.0, 0.0}},
        {"LIMMAX", {12000.0, 8000.0}},
    };
}

Json layerFilters() {
    return Json{
        {"name", "All"},
        {"filters",
         Json::array({
             {{"name", "Building"}, {"expression", "NAME==\"W*\" OR NAME==\"D*\""}},
             {{"name", "Frozen or off"}, {"expression", "FROZEN==\"True\" OR OFF==\"True\""}},
             {{"name", "Services"},
              {"layers", {"Electrical", "Plumbing"}},
              {"filters", Json::array({{{"name", "Wet"}, {"layers", {"Plumbing"}}}})}},
         })},
    };
}

Json layerStates() {
    const auto state = [](const char* layer, bool off, bool frozen, int color) {
        return Json{{"name", layer},    {"off", off},          {"frozen", frozen},
                    {"locked", false},  {"color", color},      {"linetype", "Continuous"},
                    {"lineweight", -3}, {"transparency", 255}, {"plotStyle", "Normal"},
                    {"plottable", true}};
    };
    return Json::array({
        {{"name", "Walls only"},
         {"description", "Everything but the walls off"},
         {"mask", 0},
         {"layers", Json::array({state("Walls", false, false, 5), state("Doors", true, false, 30),
                                 state("Furniture", true, false, 1)})}},
        {{"name", "Presentation"},
         {"mask", 0x8000},
         {"layers", Json::array({state("Furniture", false, false, 1)})}},
    });
}

}  // namespace

KyRefJson KySampleDrawing::json() {
    KySampleHandles handles;
    Json drawing{{"format", "kydrawing"},
                 {"version", 1},
                 {"source", "made by the kydi project (apps/kydi-sample): a small house"},
                 {"header", header()}};
    KySampleTables::add(drawing, handles);
    KySampleBlocks::add(drawing, handles);
    KySampleObjects::add(drawing, handles);
    KySampleBlocks::addLater(drawing, handles);
    drawing["layerFilters"] = layerFilters();
    drawing["layerStates"] = layerStates();
    return drawing;
}
