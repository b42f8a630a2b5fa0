#include "KySampleTables.h"

#include "KySampleHandles.h"

namespace {

using Json = KyRefJson;

Json rgb(int red, int green, int blue) {
    return Json{{"rgb", {red, green, blue}}};
}

Json linetypes(KySampleHandles& h) {
    const auto linetype = [&h](const char* name, const char* description, Json pattern) {
        return Json{{"handle", h.of(std::string("linetype:") + name)},
                    {"name", name},
                    {"description", description},
                    {"pattern", std::move(pattern)}};
    };
    return Json::array({
        linetype("ByBlock", "", Json::array()),
        linetype("ByLayer", "", Json::array()),
        linetype("Continuous", "Solid line", Json::array()),
        linetype("DASHED", "Dashed __ __ __ __ __ __", {12.7, -6.35}),
        linetype("HIDDEN", "Hidden __ __ __ __ __ __", {6.35, -3.175}),
        linetype("CENTER", "Center ____ _ ____ _ ____", {31.75, -6.35, 6.35, -6.35}),
        linetype("PHANTOM", "Phantom ______  __  __  ______",
                 {31.75, -6.35, 6.35, -6.35, 6.35, -6.35}),
        linetype("DOT", "Dot . . . . . . . . . . . .", {0.0, -6.35}),
        linetype("DASHDOT", "Dash dot __ . __ . __ . __", {12.7, -6.35, 0.0, -6.35}),
    });
}

Json textStyles(KySampleHandles& h) {
    return Json::array({
        {{"handle", h.of("style:Standard")}, {"name", "Standard"}, {"font", "txt"}},
        {{"handle", h.of("style:Annotation")},
         {"name", "Annotation"},
         {"font", "arial.ttf"},
         {"height", 0.0},
         {"widthFactor", 1.0}},
        {{"handle", h.of("style:Title")},
         {"name", "Title"},
         {"font", "romans.shx"},
         {"height", 5.0},
         {"widthFactor", 0.8},
         {"oblique", 15.0}},
        {{"handle", h.of("style:Notes")},
         {"name", "Notes"},
         {"font", "simplex.shx"},
         {"bigFont", "bigfont.shx"},
         {"height", 2.5}},
    });
}

// Layers in every state: on and off, frozen, locked, not plotted, colours by
// index, true colours and a colour of a colour book, linetypes, lineweights,
// transparencies, plot styles, descriptions and overrides in a viewport.
Json layers(KySampleHandles& h) {
    const std::string details = h.of("viewport:Details/main");
    const std::string plan = h.of("viewport:Plan/main");
    const auto layer = [&h](const char* name, Json color) {
        return Json{{"handle", h.of(std::string("layer:") + name)},
                    {"name", name},
                    {"color", std::move(color)}};
    };
    Json out = Json::array();
    out.push_back(layer("0", 7));

    Json walls = layer("Walls", 5);
    walls["lineweight"] = 50;
    walls["description"] = "Exterior and interior walls";
    walls["viewportOverrides"] = Json::array({
        {{"viewport", details}, {"color", 1}, {"lineweight", 70}},
        {{"viewport", plan}, {"transparency", 178}},
    });
    out.push_back(std::move(walls));

    Json doors = layer("Doors", 30);
    doors["linetype"] = "DASHED";
    doors["lineweight"] = 25;
    doors["description"] = "Door swings";
    out.push_back(std::move(doors));

    Json windows = layer("Windows", rgb(0, 128, 255));
    windows["lineweight"] = 18;
    windows["transparency"] = 204;
    out.push_back(std::move(windows));

    Json furniture = layer(
        "Furniture", Json{{"rgb", {204, 6, 5}}, {"book", "RAL CLASSIC"}, {"name", "RAL 3020"}});
    furniture["linetype"] = "CENTER";
    furniture["description"] = "Loose furniture, from the supplier's catalogue";
    furniture["viewportOverrides"] = Json::array({
        {{"viewport", details},
         {"color", rgb(90, 90, 90)},
         {"linetype", "PHANTOM"},
         {"lineweight", 13},
         {"transparency", 127},
         {"plotStyle", "Thin"}},
    });
    out.push_back(std::move(furniture));

    Json dimensions = layer("Dimensions", 2);
    dimensions["locked"] = true;
    dimensions["lineweight"] = 13;
    out.push_back(std::move(dimensions));

    Json text = layer("Text", 7);
    text["plotStyle"] = "Bold";
    out.push_back(std::move(text));

    Json hatch = layer("Hatch", 9);
    hatch["transparency"] = 127;
    out.push_back(std::move(hatch));

    Json hidden = layer("Hidden Lines", 8);
    hidden["linetype"] = "HIDDEN";
    hidden["off"] = true;
    out.push_back(std::move(hidden));

    Json construction = layer("Construction", 253);
    construction["frozen"] = true;
    construction["plottable"] = false;
    construction["linetype"] = "DOT";
    out.push_back(std::move(construction));

    Json electrical = layer("Electrical", 6);
    electrical["off"] = true;
    electrical["locked"] = true;
    electrical["linetype"] = "DASHDOT";
    out.push_back(std::move(electrical));

    Json plumbing = layer("Plumbing", rgb(0, 160, 80));
    plumbing["frozenInNewViewports"] = true;
    plumbing["lineweight"] = 35;
    out.push_back(std::move(plumbing));

    Json grid = layer("Grid", 252);
    grid["frozen"] = true;
    grid["off"] = true;
    grid["locked"] = true;
    grid["lineweight"] = 0;
    grid["transparency"] = 51;
    out.push_back(std::move(grid));

    Json sketch = layer("Ébauche", 4);
    sketch["description"] = "Esquisse à main levée";
    out.push_back(std::move(sketch));

    Json viewports = layer("Viewports", 150);
    viewports["plottable"] = false;
    out.push_back(std::move(viewports));

    Json defpoints = layer("Defpoints", 7);
    defpoints["plottable"] = false;
    out.push_back(std::move(defpoints));
    return out;
}

Json dimStyles(KySampleHandles& h) {
    return Json::array({
        {{"handle", h.of("dimstyle:Standard")}, {"name", "Standard"}},
        {{"handle", h.of("dimstyle:ISO-25")},
         {"name", "ISO-25"},
         {"textStyle", "Annotation"},
         {"values",
          {{"DIMASZ", 2.5},
           {"DIMTXT", 2.5},
           {"DIMEXE", 1.25},
           {"DIMEXO", 0.625},
           {"DIMGAP", 0.625},
           {"DIMDEC", 2},
           {"DIMCLRD", 256}}}},
        {{"handle", h.of("dimstyle:Architectural")},
         {"name", "Architectural"},
         {"textStyle", "Notes"},
         {"values", {{"DIMSCALE", 48.0}, {"DIMASZ", 0.1875}, {"DIMTXT", 0.125}, {"DIMLUNIT", 4}}}},
    });
}

Json views(KySampleHandles& h) {
    return Json::array({
        {{"handle", h.of("view:Entrance")},
         {"name", "Entrance"},
         {"center", {2500.0, 1200.0}},
         {"height", 3000.0},
         {"width", 4500.0}},
        {{"handle", h.of("view:Kitchen Detail")},
         {"name", "Kitchen Detail"},
         {"center", {7200.0, 4100.0}},
         {"height", 1500.0},
         {"width", 2000.0},
         {"sun", h.of("sun:Kitchen Detail")}},
        {{"handle", h.of("view:Isometric")},
         {"name", "Isometric"},
         {"center", {5000.0, 3000.0}},
         {"height", 9000.0},
         {"width", 12000.0},
         {"target", {5000.0, 3000.0, 0.0}},
         {"direction", {1.0, -1.0, 1.0}}},
        {{"handle", h.of("view:Title Area")},
         {"name", "Title Area"},
         {"paperSpace", true},
         {"center", {360.0, 30.0}},
         {"height", 60.0},
         {"width", 120.0}},
    });
}

Json ucs(KySampleHandles& h) {
    return Json::array({
        {{"handle", h.of("ucs:North Wall")},
         {"name", "North Wall"},
         {"origin", {0.0, 6000.0, 0.0}},
         {"xAxis", {1.0, 0.0, 0.0}},
         {"yAxis", {0.0, 0.0, 1.0}}},
        {{"handle", h.of("ucs:Rotated 30")},
         {"name", "Rotated 30"},
         {"origin", {1000.0, 1000.0, 0.0}},
         {"xAxis", {0.866025, 0.5, 0.0}},
         {"yAxis", {-0.5, 0.866025, 0.0}}},
    });
}

Json viewportTable(KySampleHandles& h) {
    return Json::array({
        {{"handle", h.of("vport:*Active")},
         {"name", "*Active"},
         {"center", {5000.0, 3000.0}},
         {"height", 9000.0},
         {"viewCenter", {5000.0, 3000.0}}},
    });
}

}  // namespace

void KySampleTables::add(KyRefJson& drawing, KySampleHandles& handles) {
    drawing["linetypes"] = linetypes(handles);
    drawing["textStyles"] = textStyles(handles);
    drawing["layers"] = layers(handles);
    drawing["dimStyles"] = dimStyles(handles);
    drawing["views"] = views(handles);
    drawing["ucs"] = ucs(handles);
    drawing["viewports"] = viewportTable(handles);
}
