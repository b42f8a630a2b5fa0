// Support for the drawing file tests: the folder of real drawings, reading
// a drawing from JSON text, and comparing documents as JSON without regard to
// the order of members.
#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <string>

#include "db/KyDbDatabase.h"
#include "db/KyDbObjectId.h"
#include "io/KyRefJson.h"

namespace drawingio {

// The folder of real drawings (KYDI_DRAWINGS_DIR), or nothing when the
// variable is not set or the folder is not there.
std::optional<std::filesystem::path> drawingsFolder();
std::string readText(const std::filesystem::path& file);

// A reading: the database, or the error when there is none.
struct Reading {
    std::unique_ptr<KyDbDatabase> db;
    std::string error;
};
Reading read(const std::string& text);
Reading read(const KyRefJson& document);

// The document written from `db`, as the text of its file parsed again.
KyRefJson save(KyDbDatabase* db);
// `document` in a form that compares without regard to member order.
nlohmann::json unordered(const KyRefJson& document);

// A small drawing with a layer, a linetype, a block with a line and a
// reference, and a layout: the base that the tests change.
KyRefJson smallDrawing();

// The record named `name` of a table, and its name.
KyDbObjectId recordNamed(KyDbObjectId tableId, const wchar_t* name);
std::string recordName(KyDbObjectId id);

}  // namespace drawingio
