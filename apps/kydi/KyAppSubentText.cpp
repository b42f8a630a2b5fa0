#include "KyAppSubentText.h"

#include <charconv>
#include <vector>

#include "KyAppValue.h"

namespace {

struct KindRow {
    const char* name;
    KyDb::SubentType type;
};

const KindRow kKinds[] = {
    {"face", KyDb::kFaceSubentType},
    {"edge", KyDb::kEdgeSubentType},
    {"vertex", KyDb::kVertexSubentType},
    {"attribute", KyDb::kAttributeSubentType},
};

const char* kindName(KyDb::SubentType type) {
    for (const KindRow& row : kKinds) {
        if (row.type == type) {
            return row.name;
        }
    }
    return "part";
}

}  // namespace

bool KyAppSubentText::isSubent(const std::string& word) {
    return word.find('/') != std::string::npos;
}

bool KyAppSubentText::parse(const std::string& word, std::string& handle, KyDbSubentId& subentId) {
    const std::size_t slash = word.find('/');
    const std::size_t colon = word.find(':', slash);
    if (slash == 0 || slash == std::string::npos || colon == std::string::npos) {
        return false;
    }
    handle = word.substr(0, slash);
    const std::string kind = word.substr(slash + 1, colon - slash - 1);
    const char* first = word.data() + colon + 1;
    const char* last = word.data() + word.size();
    int index = 0;
    const auto [end, failure] = std::from_chars(first, last, index);
    if (first == last || failure != std::errc() || end != last || index < 0) {
        return false;
    }
    for (const KindRow& row : kKinds) {
        if (kind == row.name) {
            subentId = KyDbSubentId(row.type, index);
            return true;
        }
    }
    return false;
}

std::string KyAppSubentText::format(const KyDbFullSubentPath& path) {
    std::string text;
    for (const KyDbObjectId& id : path.objectIds()) {
        text += KyAppValue::object(id.handle()).format() + "/";
    }
    return text + kindName(path.subentId().type()) + ":" + std::to_string(path.subentId().index());
}

std::string KyAppSubentText::describe(const KyDbSubentId& subentId) {
    return std::string(kindName(subentId.type())) + " " + std::to_string(subentId.index());
}

bool KyAppSubentText::isCells(const std::string& word) {
    const std::size_t slash = word.find('/');
    return slash != std::string::npos && word.compare(slash + 1, 6, "cells:") == 0;
}

bool KyAppSubentText::parseCells(const std::string& word, std::string& handle,
                                 KyDbCellRange& cells) {
    const std::size_t slash = word.find('/');
    if (slash == 0 || !isCells(word)) {
        return false;
    }
    handle = word.substr(0, slash);
    std::vector<int> numbers;
    const char* next = word.data() + slash + 7;
    const char* last = word.data() + word.size();
    while (true) {
        int number = 0;
        const auto [end, failure] = std::from_chars(next, last, number);
        if (end == next || failure != std::errc() || number < 0) {
            return false;
        }
        numbers.push_back(number);
        if (end == last) {
            break;
        }
        if (*end != ',') {
            return false;
        }
        next = end + 1;
    }
    if (numbers.size() == 2) {
        cells = KyDbCellRange(numbers[0], numbers[1], numbers[0], numbers[1]);
        return true;
    }
    if (numbers.size() == 4) {
        cells = KyDbCellRange(numbers[0], numbers[1], numbers[2], numbers[3]);
        return cells.isValid();
    }
    return false;
}

std::string KyAppSubentText::formatCells(const KyDbCellRange& cells) {
    std::string text =
        "cells:" + std::to_string(cells.topRow()) + "," + std::to_string(cells.leftColumn());
    if (cells.bottomRow() != cells.topRow() || cells.rightColumn() != cells.leftColumn()) {
        text += "," + std::to_string(cells.bottomRow()) + "," + std::to_string(cells.rightColumn());
    }
    return text;
}
