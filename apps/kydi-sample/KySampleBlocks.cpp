#include "KySampleBlocks.h"

#include "KySampleHandles.h"

namespace {

using Json = KyRefJson;

// An entity of `type` on `layer`, with a handle of its own.
Json entity(KySampleHandles& h, const char* type, const char* layer) {
    return Json{{"type", type}, {"handle", h.next()}, {"layer", layer}};
}

Json block(KySampleHandles& h, const char* name, Json entities) {
    return Json{{"handle", h.of(std::string("block:") + name)},
                {"name", name},
                {"entities", std::move(entities)}};
}

// An attribute definition: the host keeps the type whole.
Json attributeDefinition(KySampleHandles& h, const char* tag, const char* prompt, const char* value,
                         Json position) {
    Json out = entity(h, "ATTDEF", "0");
    out["tag"] = tag;
    out["prompt"] = prompt;
    out["default"] = value;
    out["position"] = std::move(position);
    out["height"] = 2.5;
    return out;
}

Json line(KySampleHandles& h, const char* layer, Json start, Json end) {
    Json out = entity(h, "LINE", layer);
    out["start"] = std::move(start);
    out["end"] = std::move(end);
    return out;
}

Json door(KySampleHandles& h) {
    Json arc = entity(h, "ARC", "0");
    arc["center"] = {0.0, 0.0};
    arc["radius"] = 900.0;
    arc["startAngle"] = 0.0;
    arc["endAngle"] = 90.0;
    arc["color"] = 0;
    return block(
        h, "Door",
        Json::array(
            {line(h, "0", {0.0, 0.0}, {0.0, 900.0}), arc,
             attributeDefinition(h, "NUMBER", "Door number", "D00", {450.0, 100.0}),
             attributeDefinition(h, "FIRE_RATING", "Fire rating", "none", {450.0, -100.0})}));
}

Json window(KySampleHandles& h) {
    Json frame = entity(h, "POLYLINE", "0");
    frame["points"] = Json::array({{0.0, 0.0}, {1200.0, 0.0}, {1200.0, 200.0}, {0.0, 200.0}});
    frame["closed"] = true;
    frame["color"] = 0;
    return block(h, "Window", Json::array({frame, line(h, "0", {0.0, 100.0}, {1200.0, 100.0})}));
}

Json titleBlock(KySampleHandles& h) {
    Json frame = entity(h, "POLYLINE", "0");
    frame["points"] = Json::array({{0.0, 0.0}, {180.0, 0.0}, {180.0, 40.0}, {0.0, 40.0}});
    frame["closed"] = true;
    frame["width"] = 0.5;
    Json caption = entity(h, "TEXT", "0");
    caption["position"] = {5.0, 32.0};
    caption["height"] = 3.5;
    caption["text"] = "Sample House";
    caption["style"] = "Title";
    return block(h, "Title Block",
                 Json::array({frame, caption,
                              attributeDefinition(h, "TITLE", "Sheet title", "Plan", {5.0, 20.0}),
                              attributeDefinition(h, "SCALE", "Scale", "1:100", {5.0, 12.0}),
                              attributeDefinition(h, "DRAWN_BY", "Drawn by", "", {5.0, 4.0})}));
}

// The picture of the model's dimension.
Json dimensionPicture(KySampleHandles& h) {
    Json text = entity(h, "MTEXT", "Dimensions");
    text["position"] = {2000.0, -450.0};
    text["height"] = 250.0;
    text["text"] = "4000";
    text["style"] = "Annotation";
    Json points = Json::array();
    for (const double x : {0.0, 4000.0}) {
        Json point = entity(h, "POINT", "Defpoints");
        point["position"] = {x, 0.0};
        points.push_back(std::move(point));
    }
    return block(h, "*D1",
                 Json::array({line(h, "Dimensions", {0.0, -600.0}, {4000.0, -600.0}),
                              line(h, "Dimensions", {0.0, 0.0}, {0.0, -700.0}),
                              line(h, "Dimensions", {4000.0, 0.0}, {4000.0, -700.0}), text,
                              points[0], points[1]}));
}

// An entity of every modelled type, on the sample's layers, with and
// without properties of their own.
Json modelEntities(KySampleHandles& h) {
    Json out = Json::array();
    Json outline = entity(h, "POLYLINE", "Walls");
    outline["points"] = Json::array({{0.0, 0.0}, {10000.0, 0.0}, {10000.0, 6000.0}, {0.0, 6000.0}});
    outline["closed"] = true;
    outline["width"] = 20.0;
    out.push_back(std::move(outline));
    out.push_back(line(h, "Walls", {4000.0, 0.0}, {4000.0, 6000.0}));
    out.push_back(line(h, "Walls", {4000.0, 3500.0}, {10000.0, 3500.0}));

    Json dashed = line(h, "Construction", {-500.0, 3000.0}, {10500.0, 3000.0});
    dashed["color"] = {{"rgb", {255, 128, 0}}};
    dashed["linetype"] = "DASHED";
    dashed["lineweight"] = 30;
    dashed["transparency"] = 100;
    dashed["linetypeScale"] = 2.0;
    out.push_back(std::move(dashed));

    Json column = entity(h, "CIRCLE", "Walls");
    column["center"] = {4000.0, 3500.0};
    column["radius"] = 150.0;
    column["material"] = "Concrete";
    out.push_back(std::move(column));

    Json swing = entity(h, "ARC", "Doors");
    swing["center"] = {4000.0, 1000.0};
    swing["radius"] = 900.0;
    swing["startAngle"] = 90.0;
    swing["endAngle"] = 180.0;
    out.push_back(std::move(swing));

    Json table = entity(h, "ELLIPSE", "Furniture");
    table["center"] = {7000.0, 1800.0};
    table["majorAxis"] = {900.0, 0.0};
    table["ratio"] = 0.6;
    out.push_back(std::move(table));

    Json lamp = entity(h, "ELLIPSE", "Electrical");
    lamp["center"] = {2000.0, 4500.0};
    lamp["majorAxis"] = {0.0, 300.0};
    lamp["ratio"] = 0.5;
    lamp["startAngle"] = 0.0;
    lamp["endAngle"] = 180.0;
    lamp["color"] = 6;
    out.push_back(std::move(lamp));

    Json survey = entity(h, "POINT", "Construction");
    survey["position"] = {0.0, 0.0, 0.0};
    out.push_back(std::move(survey));

    Json pipe = entity(h, "POLYLINE", "Plumbing");
    pipe["points"] = Json::array({{8000.0, 5800.0}, {8000.0, 4000.0}, {9500.0, 4000.0}});
    pipe["width"] = 50.0;
    pipe["plotStyle"] = "Thin";
    out.push_back(std::move(pipe));

    Json room = entity(h, "TEXT", "Text");
    room["position"] = {1500.0, 3000.0};
    room["height"] = 250.0;
    room["text"] = "Living room";
    room["style"] = "Title";
    out.push_back(std::move(room));

    Json rotated = entity(h, "TEXT", "Ébauche");
    rotated["position"] = {500.0, 500.0};
    rotated["height"] = 150.0;
    rotated["text"] = "Esquisse";
    rotated["rotation"] = 30.0;
    rotated["visible"] = false;
    out.push_back(std::move(rotated));

    Json note = entity(h, "MTEXT", "Text");
    note["position"] = {6000.0, 5500.0};
    note["height"] = 180.0;
    note["text"] = "Kitchen\\PFloor: tiles";
    note["style"] = "Notes";
    note["width"] = 2500.0;
    out.push_back(std::move(note));

    Json entrance = entity(h, "INSERT", "Doors");
    entrance["block"] = "Door";
    entrance["position"] = {4000.0, 1000.0};
    entrance["rotation"] = 90.0;
    entrance["attributes"] = Json::array(
        {{{"tag", "NUMBER"}, {"text", "D01"}}, {{"tag", "FIRE_RATING"}, {"text", "EI30"}}});
    out.push_back(std::move(entrance));

    Json kitchenDoor = entity(h, "INSERT", "Doors");
    kitchenDoor["block"] = "Door";
    kitchenDoor["position"] = {6000.0, 3500.0};
    kitchenDoor["scale"] = {-1.0, 1.0, 1.0};
    kitchenDoor["attributes"] = Json::array({{{"tag", "NUMBER"}, {"text", "D02"}}});
    kitchenDoor["dynamic"] = true;
    kitchenDoor["color"] = 3;
    out.push_back(std::move(kitchenDoor));

    for (const double x : {1000.0, 6500.0}) {
        Json glazing = entity(h, "INSERT", "Windows");
        glazing["block"] = "Window";
        glazing["position"] = {x, 5900.0};
        out.push_back(std::move(glazing));
    }

    Json dimension = entity(h, "DIMENSION", "Dimensions");
    dimension["dimStyle"] = "ISO-25";
    dimension["block"] = "*D1";
    dimension["points"] = Json::array({{0.0, 0.0}, {4000.0, 0.0}, {2000.0, -600.0}});
    dimension["measurement"] = 4000.0;
    dimension["text"] = "<>";
    out.push_back(std::move(dimension));

    Json leader = entity(h, "LEADER", "Dimensions");
    leader["points"] = Json::array({{4150.0, 3650.0}, {4800.0, 4300.0}, {5300.0, 4300.0}});
    leader["dimStyle"] = "ISO-25";
    out.push_back(std::move(leader));

    Json callout = entity(h, "MLEADER", "Text");
    callout["style"] = "Callout";
    callout["points"] = Json::array({{10000.0, 2000.0}, {10800.0, 2600.0}});
    callout["text"] = "Load-bearing wall";
    out.push_back(std::move(callout));

    Json floor = entity(h, "HATCH", "Hatch");
    floor["pattern"] = "ANSI31";
    floor["loops"] = Json::array(
        {Json::array({{4000.0, 3500.0}, {10000.0, 3500.0}, {10000.0, 6000.0}, {4000.0, 6000.0}}),
         Json::array({{7000.0, 4500.0}, {7500.0, 4500.0}, {7500.0, 5000.0}, {7000.0, 5000.0}})});
    floor["transparency"] = "ByBlock";
    out.push_back(std::move(floor));

    Json photo = entity(h, "IMAGE", "Ébauche");
    photo["definition"] = h.of("imagedef:site photo");
    photo["position"] = {-3000.0, 0.0};
    photo["size"] = {2400.0, 1800.0};
    out.push_back(std::move(photo));

    Json schedule = entity(h, "TABLE", "Text");
    schedule["style"] = "Schedule";
    schedule["position"] = {11000.0, 6000.0};
    schedule["rows"] = 4;
    schedule["columns"] = 3;
    schedule["cellStyles"] = Json::array(
        {Json::array({"Title", "Title", "Title"}), Json::array({"Header", "Header", "Header"}),
         Json::array({"Data", "Data", "Total"}), Json::array({"Data", "Data", "Total"})});
    out.push_back(std::move(schedule));

    Json scan = entity(h, "POINTCLOUD", "Construction");
    scan["definition"] = h.of("pointclouddef:survey");
    scan["position"] = {0.0, 0.0, -100.0};
    out.push_back(std::move(scan));
    return out;
}

Json viewport(KySampleHandles& h, const std::string& key, Json center, double width, double height,
              Json viewCenter, double viewHeight) {
    Json out{{"type", "VIEWPORT"}, {"handle", h.of(key)}, {"layer", "Viewports"}};
    out["center"] = std::move(center);
    out["width"] = width;
    out["height"] = height;
    out["viewCenter"] = std::move(viewCenter);
    out["viewHeight"] = viewHeight;
    return out;
}

Json titleBlockInsert(KySampleHandles& h, const char* title, const char* scale) {
    Json out = entity(h, "INSERT", "0");
    out["block"] = "Title Block";
    out["position"] = {230.0, 10.0};
    out["attributes"] = Json::array({{{"tag", "TITLE"}, {"text", title}},
                                     {{"tag", "SCALE"}, {"text", scale}},
                                     {{"tag", "DRAWN_BY"}, {"text", "kydi"}}});
    return out;
}

Json planSheet(KySampleHandles& h) {
    Json paper =
        viewport(h, "viewport:Plan/paper", {210.0, 148.5}, 420.0, 297.0, {210.0, 148.5}, 297.0);
    paper["layer"] = "0";
    Json main =
        viewport(h, "viewport:Plan/main", {200.0, 160.0}, 360.0, 240.0, {5000.0, 3000.0}, 24000.0);
    Json out =
        block(h, "*Paper_Space", Json::array({paper, main, titleBlockInsert(h, "Plan", "1:100")}));
    out["layout"] = h.of("layout:Plan");
    return out;
}

Json detailsSheet(KySampleHandles& h) {
    Json paper =
        viewport(h, "viewport:Details/paper", {210.0, 148.5}, 420.0, 297.0, {210.0, 148.5}, 297.0);
    paper["layer"] = "0";
    Json main = viewport(h, "viewport:Details/main", {130.0, 170.0}, 220.0, 200.0, {7000.0, 4750.0},
                         2500.0);
    main["frozenLayers"] = Json::array({"Text", "Hatch", "Dimensions"});
    main["visualStyle"] = "Hidden";
    main["locked"] = true;
    Json clipped = viewport(h, "viewport:Details/clipped", {330.0, 200.0}, 140.0, 120.0,
                            {2000.0, 1000.0}, 2000.0);
    clipped["clip"] = Json::array({{260.0, 140.0}, {400.0, 140.0}, {400.0, 260.0}, {330.0, 260.0}});
    clipped["on"] = false;
    clipped["sun"] = h.of("sun:Details");
    Json out = block(h, "*Paper_Space0",
                     Json::array({paper, main, clipped, titleBlockInsert(h, "Details", "1:20")}));
    out["layout"] = h.of("layout:Details");
    return out;
}

}  // namespace

void KySampleBlocks::addLater(KyRefJson& drawing, KySampleHandles& handles) {
    // A rug over the kitchen floor, half of it on the floor's hole.
    Json rug = entity(handles, "HATCH", "Hatch");
    rug["pattern"] = "SOLID";
    rug["loops"] = Json::array(
        {Json::array({{6500.0, 4000.0}, {8500.0, 4000.0}, {8500.0, 4800.0}, {6500.0, 4800.0}})});
    rug["color"] = 30;
    // A section through the whole house, and a detail of the kitchen's
    // column, each in one of the sample's view styles.
    Json section = entity(handles, "VIEWCALLOUT", "Dimensions");
    section["kind"] = "section";
    section["style"] = "Standard";
    section["points"] = Json::array({{-500.0, 2000.0}, {10500.0, 2000.0}});
    section["label"] = "A";
    Json detail = entity(handles, "VIEWCALLOUT", "Dimensions");
    detail["kind"] = "detail";
    detail["style"] = "Metric";
    detail["points"] = Json::array({{7250.0, 4750.0}, {7750.0, 4750.0}});
    detail["label"] = "B";
    for (Json& block : drawing["blocks"]) {
        if (block["name"] == "*Model_Space") {
            block["entities"].push_back(std::move(rug));
            block["entities"].push_back(std::move(section));
            block["entities"].push_back(std::move(detail));
            return;
        }
    }
}

void KySampleBlocks::add(KyRefJson& drawing, KySampleHandles& handles) {
    Json model = block(handles, "*Model_Space", modelEntities(handles));
    model["layout"] = handles.of("layout:Model");
    Json site = block(handles, "Site Plan", Json::array());
    site["xref"] = {{"path", "site-plan.kyd"}, {"overlay", true}};
    site["description"] = "The surveyor's site plan, overlaid";
    drawing["blocks"] = Json::array({
        model,
        planSheet(handles),
        detailsSheet(handles),
        door(handles),
        window(handles),
        titleBlock(handles),
        dimensionPicture(handles),
        site,
    });
}
