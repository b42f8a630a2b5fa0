#include "DrawingTestSupport.h"

#include <cstdlib>
#include <fstream>
#include <sstream>

#include "db/KyDbObjectPointer.h"
#include "db/KyDbSymbolTable.h"
#include "db/KyDbSymbolTableRecord.h"
#include "io/KyRefDrawingReader.h"
#include "io/KyRefDrawingWriter.h"

namespace drawingio {

std::optional<std::filesystem::path> drawingsFolder() {
    const char* folder = std::getenv("KYDI_DRAWINGS_DIR");
    if (folder == nullptr || !std::filesystem::is_directory(folder)) {
        return std::nullopt;
    }
    return std::filesystem::path(folder);
}

std::string readText(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

Reading read(const std::string& text) {
    KyString error;
    Reading reading;
    reading.db = KyRefDrawingReader::readText(text, error);
    reading.error = error.utf8();
    return reading;
}

Reading read(const KyRefJson& document) {
    return read(document.dump());
}

KyRefJson save(KyDbDatabase* db) {
    return KyRefJson::parse(KyRefDrawingWriter::toText(db));
}

nlohmann::json unordered(const KyRefJson& document) {
    return nlohmann::json::parse(document.dump());
}

KyRefJson smallDrawing() {
    return KyRefJson::parse(R"({
 "format": "kydrawing",
 "version": 1,
 "header": {"CLAYER": "Walls"},
 "linetypes": [
  {"handle": "14", "name": "ByBlock"},
  {"handle": "15", "name": "ByLayer"},
  {"handle": "16", "name": "Continuous", "description": "Solid line"},
  {"handle": "17", "name": "DASHED", "description": "Dashed", "pattern": [0.5, -0.25]}
 ],
 "layers": [
  {"handle": "10", "name": "0"},
  {"handle": "20", "name": "Walls", "color": 5, "linetype": "DASHED", "lineweight": 25}
 ],
 "textStyles": [{"handle": "11", "name": "Standard", "font": "txt"}],
 "dimStyles": [{"handle": "12", "name": "Standard"}],
 "blocks": [
  {"handle": "1A", "name": "*Model_Space", "layout": "2A", "entities": [
   {"type": "LINE", "handle": "30", "layer": "Walls", "start": [0, 0], "end": [10, 5]},
   {"type": "INSERT", "handle": "31", "block": "Door", "position": [1, 2]}
  ]},
  {"handle": "1B", "name": "*Paper_Space", "layout": "2B", "entities": []},
  {"handle": "1C", "name": "Door", "entities": [
   {"type": "CIRCLE", "handle": "32", "center": [0, 0, 0], "radius": 1.5}
  ]}
 ],
 "objects": {"type": "DICTIONARY", "handle": "C", "entries": {
  "KYRO_LAYOUT": {"type": "DICTIONARY", "handle": "D", "entries": {
   "Model": {"type": "LAYOUT", "handle": "2A", "name": "Model", "tabOrder": 0, "block": "1A"},
   "Layout1": {"type": "LAYOUT", "handle": "2B", "name": "Layout1", "tabOrder": 1, "block": "1B"}
  }}
 }}
})");
}

KyDbObjectId recordNamed(KyDbObjectId tableId, const wchar_t* name) {
    KyDbObjectPointer<KyDbSymbolTable> table(tableId, KyDb::kForRead);
    KyDbObjectId id;
    if (table.openStatus() == Kyro::eOk) {
        table->getAt(name, id);
    }
    return id;
}

std::string recordName(KyDbObjectId id) {
    KyDbObjectPointer<KyDbSymbolTableRecord> record(id, KyDb::kForRead);
    return record.openStatus() == Kyro::eOk ? record->name().utf8() : std::string();
}

}  // namespace drawingio
