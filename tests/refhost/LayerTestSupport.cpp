#include "LayerTestSupport.h"

#include <unistd.h>

#include <fstream>
#include <sstream>

#include "KyRefColorText.h"
#include "KyRefDocument.h"
#include "KyRefTransparencyText.h"
#include "db/KyCmColorBook.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbHandle.h"
#include "db/KyDbLayerTableRecord.h"
#include "db/KyDbLinetypeTableRecord.h"
#include "db/KyDbObjectPointer.h"
#include "db/KyDbSymbolTable.h"
#include "db/KyDbViewport.h"
#include "io/KyRefDrawingFile.h"

namespace refhost {

const char* const kLayerDrawing = R"({
 "format": "kydrawing",
 "version": 1,
 "header": {"TILEMODE": 0, "PSTYLEMODE": 0},
 "linetypes": [
  {"handle": "14", "name": "ByBlock"},
  {"handle": "15", "name": "ByLayer"},
  {"handle": "16", "name": "Continuous"},
  {"handle": "17", "name": "DASHED", "pattern": [0.5, -0.25]}
 ],
 "layers": [
  {"handle": "10", "name": "0"},
  {"handle": "20", "name": "Walls"},
  {"handle": "21", "name": "Doors", "color": 3},
  {"handle": "22", "name": "Frozen", "frozen": true}
 ],
 "blocks": [
  {"handle": "1A", "name": "*Model_Space", "layout": "2A", "entities": []},
  {"handle": "1B", "name": "*Paper_Space", "layout": "2B", "entities": [
   {"type": "VIEWPORT", "handle": "40", "center": [0, 0], "width": 420, "height": 297,
    "viewCenter": [0, 0], "viewHeight": 297},
   {"type": "VIEWPORT", "handle": "41", "center": [100, 100], "width": 100, "height": 80,
    "viewCenter": [0, 0], "viewHeight": 50},
   {"type": "VIEWPORT", "handle": "42", "center": [300, 100], "width": 100, "height": 80,
    "viewCenter": [0, 0], "viewHeight": 50}
  ]}
 ],
 "objects": {"type": "DICTIONARY", "handle": "C", "entries": {
  "KYRO_LAYOUT": {"type": "DICTIONARY", "handle": "D", "entries": {
   "Model": {"type": "LAYOUT", "handle": "2A", "name": "Model", "tabOrder": 0, "block": "1A"},
   "Layout1": {"type": "LAYOUT", "handle": "2B", "name": "Layout1", "tabOrder": 1, "block": "1B"}
  }},
  "KYRO_PLOTSTYLENAME": {"type": "DICTIONARY", "handle": "E", "default": "Normal", "entries": {
   "Normal": {"type": "PLACEHOLDER", "handle": "50", "name": "Normal"},
   "Thick": {"type": "PLACEHOLDER", "handle": "51", "name": "Thick"}
  }}
 }},
 "layerFilters": {"name": "All", "filters": [
  {"name": "Walls only", "expression": "NAME==\"W*\""},
  {"name": "Group", "layers": ["Doors"], "filters": [{"name": "Nested", "layers": ["Walls"]}]}
 ]}
})";

namespace {

KyDbObjectId recordOf(KyDbObjectId tableId, const wchar_t* name) {
    KyDbObjectPointer<KyDbSymbolTable> table(tableId, KyDb::kForRead);
    KyDbObjectId id;
    if (table) {
        table->getAt(name, id);
    }
    return id;
}

std::string nameOf(KyDbObjectId id) {
    KyDbObjectPointer<KyDbSymbolTableRecord> record(id, KyDb::kForRead);
    return record ? record->name().utf8() : std::string("none");
}

}  // namespace

LayerFixture::LayerFixture()
    : folder(std::filesystem::temp_directory_path() /
             ("kyref-layers-" + std::to_string(::getpid()))) {
    std::filesystem::create_directories(folder);
    host->documents().setDrawingIo(&KyRefDrawingFile::instance());
}

LayerFixture::~LayerFixture() {
    std::error_code error;
    std::filesystem::remove_all(folder, error);
}

std::filesystem::path LayerFixture::writeFile(const std::string& name,
                                              const std::string& text) const {
    const std::filesystem::path path = folder / name;
    std::ofstream(path) << text;
    return path;
}

KyRefDocument* LayerFixture::openDrawing(const std::string& json, const std::string& name) {
    KyString error;
    KyRefDocument* document =
        host->documents().openDocument(writeFile(name, json).wstring().c_str(), error);
    EXPECT_NE(document, nullptr) << error.utf8();
    spy.take();
    takeLog();
    return document;
}

KyDbObjectId LayerFixture::layer(const wchar_t* name) const {
    return recordOf(db()->layerTableId(), name);
}

KyDbObjectId LayerFixture::linetype(const wchar_t* name) const {
    return recordOf(db()->linetypeTableId(), name);
}

KyDbObjectId LayerFixture::block(const wchar_t* name) const {
    return recordOf(db()->blockTableId(), name);
}

KyDbObjectId LayerFixture::object(const wchar_t* handle) const {
    KyDbHandle value;
    KyDbObjectId id;
    if (KyDbHandle::fromText(handle, value)) {
        db()->getKyDbObjectId(id, value);
    }
    return id;
}

std::string LayerFixture::state(const wchar_t* name) const {
    KyDbObjectPointer<KyDbLayerTableRecord> record(layer(name), KyDb::kForRead);
    if (!record) {
        return "missing";
    }
    std::ostringstream text;
    text << "color=" << KyRefColorText::format(record->color()).utf8()
         << " linetype=" << nameOf(record->linetypeObjectId())
         << " lineweight=" << static_cast<int>(record->lineWeight())
         << " transparency=" << KyRefTransparencyText::format(record->transparency()).utf8()
         << " plotStyle=" << record->plotStyleName().utf8() << " off=" << record->isOff()
         << " frozen=" << record->isFrozen() << " locked=" << record->isLocked()
         << " plot=" << record->isPlottable() << " description=" << record->description().utf8();
    return text.str();
}

std::string LayerFixture::overrides(const wchar_t* name, const wchar_t* viewport) const {
    const KyDbObjectId viewportId = object(viewport);
    const KyDbObjectId layerId = layer(name);
    KyDbObjectPointer<KyDbLayerTableRecord> record(layerId, KyDb::kForRead);
    if (!record) {
        return "missing";
    }
    std::ostringstream text;
    bool overridden = false;
    const KyCmColor color = record->color(viewportId, overridden);
    if (overridden) {
        text << " color=" << KyRefColorText::format(color).utf8();
    }
    const KyDbObjectId linetypeId = record->linetypeObjectId(viewportId, overridden);
    if (overridden) {
        text << " linetype=" << nameOf(linetypeId);
    }
    const KyDb::LineWeight weight = record->lineWeight(viewportId, overridden);
    if (overridden) {
        text << " lineweight=" << static_cast<int>(weight);
    }
    const KyCmTransparency transparency = record->transparency(viewportId, overridden);
    if (overridden) {
        text << " transparency=" << KyRefTransparencyText::format(transparency).utf8();
    }
    KyString style;
    record->plotStyleName(viewportId, style, overridden);
    if (overridden) {
        text << " plotStyle=" << style.utf8();
    }
    record.close();
    KyDbObjectPointer<KyDbViewport> entity(viewportId, KyDb::kForRead);
    if (entity && entity->isLayerFrozenInViewport(layerId)) {
        text << " frozen=1";
    }
    const std::string parts = text.str();
    return parts.empty() ? std::string() : parts.substr(1);
}

void LayerFixture::addNamedColors() {
    KyCmColor signal;
    signal.setRGB(200, 30, 30);
    signal.setNames(L"Signal");
    KyCmColorBook::addColor(signal);
    KyCmColor book;
    book.setRGB(155, 17, 30);
    book.setNames(L"3020", L"RAL");
    KyCmColorBook::addColor(book);
}

}  // namespace refhost
