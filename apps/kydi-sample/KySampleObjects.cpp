#include "KySampleObjects.h"

#include <initializer_list>
#include <utility>

#include "KySampleHandles.h"

namespace {

using Json = KyRefJson;

Json dictionary(KySampleHandles& h, const char* key, Json entries) {
    return Json{{"type", "DICTIONARY"},
                {"handle", h.of(std::string("dictionary:") + key)},
                {"entries", std::move(entries)}};
}

// Entries of `type` named by their keys, with the members `more` gives each.
template <typename More>
Json named(KySampleHandles& h, const char* type, std::initializer_list<const char*> names,
           More more) {
    Json entries = Json::object();
    for (const char* name : names) {
        Json entry{
            {"type", type}, {"handle", h.of(std::string(type) + ":" + name)}, {"name", name}};
        more(name, entry);
        entries[name] = std::move(entry);
    }
    return entries;
}

// A layout's plot settings: its plot style table, the page setup its
// settings come from, the resolution of raster output, and the settings the
// host keeps as they are.
struct LayoutPlot {
    const char* table;
    const char* pageSetup;
    int rasterDpi;
    Json settings;
};

Json layouts(KySampleHandles& h) {
    const auto layout = [&h](const char* name, int tabOrder, const char* block, LayoutPlot plot) {
        Json entry{{"type", "LAYOUT"},
                   {"handle", h.of(std::string("layout:") + name)},
                   {"name", name},
                   {"tabOrder", tabOrder},
                   {"block", h.of(std::string("block:") + block)},
                   {"plotSettings", std::move(plot.settings)},
                   {"plotStyleTable", plot.table}};
        if (plot.pageSetup[0] != '\0') {
            entry["pageSetup"] = plot.pageSetup;
        }
        if (plot.rasterDpi != 0) {
            entry["rasterDpi"] = plot.rasterDpi;
        }
        return entry;
    };
    return Json{
        {"Model", layout("Model", 0, "*Model_Space", {"standard.stb", "", 0, Json::object()})},
        {"Plan", layout("Plan", 1, "*Paper_Space",
                        {"monochrome.stb",
                         "A3 Landscape",
                         300,
                         {{"paper", "ISO A3 (420.00 x 297.00 MM)"}, {"scale", "1:100"}}})},
        {"Details", layout("Details", 2, "*Paper_Space0",
                           {"standard.stb",
                            "",
                            600,
                            {{"paper", "ISO A3 (420.00 x 297.00 MM)"}, {"scale", "1:20"}}})},
    };
}

void addVisualStyles(KySampleHandles& h, Json& entries) {
    const std::pair<const char*, int> styles[] = {
        {"2dWireframe", 4},        {"Wireframe", 5},  {"Hidden", 6},
        {"Realistic", 8},          {"Conceptual", 9}, {"Shaded", 27},
        {"Shaded with edges", 26}, {"X-Ray", 25},
    };
    for (const auto& [name, kind] : styles) {
        entries[name] = {{"type", "VISUALSTYLE"},
                         {"handle", h.of(std::string("visualstyle:") + name)},
                         {"name", name},
                         {"kind", kind}};
    }
    entries["Flat"] = {{"type", "VISUALSTYLE"},
                       {"handle", h.of("visualstyle:Flat")},
                       {"name", "Flat"},
                       {"kind", 0},
                       {"internal", true}};
}

}  // namespace

void KySampleObjects::add(KyRefJson& drawing, KySampleHandles& h) {
    const auto nothing = [](const char*, Json&) {};
    Json entries = Json::object();
    entries["KYRO_LAYOUT"] = dictionary(h, "KYRO_LAYOUT", layouts(h));
    entries["KYRO_PLOTSETTINGS"] =
        dictionary(h, "KYRO_PLOTSETTINGS",
                   named(h, "PLOTSETTINGS", {"A3 Landscape"}, [](const char*, Json& e) {
                       e["settings"] = {{"paper", "ISO A3 (420.00 x 297.00 MM)"},
                                        {"orientation", "landscape"}};
                   }));
    entries["KYRO_MATERIAL"] =
        dictionary(h, "KYRO_MATERIAL",
                   named(h, "MATERIAL", {"ByBlock", "ByLayer", "Global", "Concrete", "Glass"},
                         [](const char* name, Json& e) {
                             if (std::string(name) == "Concrete") {
                                 e["description"] = "Cast in place, smooth";
                             } else if (std::string(name) == "Glass") {
                                 e["description"] = "Clear float glass";
                             }
                         }));
    Json visualStyles = Json::object();
    addVisualStyles(h, visualStyles);
    entries["KYRO_VISUALSTYLE"] = dictionary(h, "KYRO_VISUALSTYLE", std::move(visualStyles));
    entries["KYRO_MLEADERSTYLE"] =
        dictionary(h, "KYRO_MLEADERSTYLE",
                   named(h, "MLEADERSTYLE", {"Standard", "Callout", "Room Tag"},
                         [](const char* name, Json& e) {
                             if (std::string(name) != "Standard") {
                                 e["textStyle"] = "Notes";
                             }
                         }));
    entries["KYRO_TABLESTYLE"] =
        dictionary(h, "KYRO_TABLESTYLE",
                   named(h, "TABLESTYLE", {"Standard", "Schedule"}, [](const char* name, Json& e) {
                       if (std::string(name) == "Schedule") {
                           e["cellStyles"] = Json::array({"Title", "Header", "Data", "Total"});
                       }
                   }));
    entries["KYRO_SECTIONVIEWSTYLE"] = dictionary(
        h, "KYRO_SECTIONVIEWSTYLE", named(h, "SECTIONVIEWSTYLE", {"Standard", "Metric"}, nothing));
    entries["KYRO_DETAILVIEWSTYLE"] = dictionary(
        h, "KYRO_DETAILVIEWSTYLE", named(h, "DETAILVIEWSTYLE", {"Standard", "Metric"}, nothing));
    entries["KYRO_SCALELIST"] =
        dictionary(h, "KYRO_SCALELIST",
                   named(h, "SCALE", {"1:1", "1:2", "1:20", "1:50", "1:100", "2:1"},
                         [](const char* name, Json& e) {
                             const std::string text(name);
                             const std::size_t colon = text.find(':');
                             e["paperUnits"] = std::stod(text.substr(0, colon));
                             e["drawingUnits"] = std::stod(text.substr(colon + 1));
                         }));
    Json plotStyles = dictionary(h, "KYRO_PLOTSTYLENAME",
                                 named(h, "PLACEHOLDER", {"Normal", "Thin", "Bold"}, nothing));
    plotStyles["default"] = "Normal";
    entries["KYRO_PLOTSTYLENAME"] = std::move(plotStyles);
    entries["KYRO_IMAGE_DICT"] = dictionary(h, "KYRO_IMAGE_DICT",
                                            Json{{"site photo",
                                                  {{"type", "IMAGEDEF"},
                                                   {"handle", h.of("imagedef:site photo")},
                                                   {"path", "images/site-photo.png"},
                                                   {"size", {1600, 1200}}}}});
    entries["KYRO_POINTCLOUD_EX_DICT"] = dictionary(h, "KYRO_POINTCLOUD_EX_DICT",
                                                    Json{{"survey",
                                                          {{"type", "POINTCLOUDDEF"},
                                                           {"handle", h.of("pointclouddef:survey")},
                                                           {"path", "scans/survey.rcp"}}}});
    entries["KYRO_RENDER_SETTINGS"] = dictionary(
        h, "KYRO_RENDER_SETTINGS",
        named(h, "RENDERSETTINGS", {"Draft", "Presentation"}, [](const char* name, Json& e) {
            e["outputSize"] = std::string(name) == "Draft" ? "640x480" : "1920x1080";
        }));
    entries["KYRO_SUN"] = dictionary(
        h, "KYRO_SUN",
        Json{{"Kitchen Detail",
              {{"type", "SUN"},
               {"handle", h.of("sun:Kitchen Detail")},
               {"on", true},
               {"intensity", 1.5},
               {"color", 40},
               {"shadowType", 1}}},
             {"Details", {{"type", "SUN"}, {"handle", h.of("sun:Details")}, {"on", false}}}});
    entries["KyDbVariableDictionary"] = dictionary(
        h, "KyDbVariableDictionary",
        Json{{"CMLEADERSTYLE",
              {{"type", "DICTIONARYVAR"}, {"handle", h.next()}, {"value", "Callout"}}},
             {"CTABLESTYLE",
              {{"type", "DICTIONARYVAR"}, {"handle", h.next()}, {"value", "Schedule"}}}});

    drawing["objects"] = {{"type", "DICTIONARY"},
                          {"handle", h.of("dictionary:root")},
                          {"entries", std::move(entries)}};
}
