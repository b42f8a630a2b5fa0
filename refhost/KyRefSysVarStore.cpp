#include "KyRefSysVarStore.h"

#include <climits>
#include <cmath>
#include <cwchar>

#include "KyRefDocumentManager.h"
#include "KyRefHost.h"
#include "KyRefSysVarTable.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbUndoController.h"
#include "ge/KyGePoint3d.h"
#include "rx/KyRxValue.h"

namespace {

using Status = KyRefSysVarStatus;

bool isNumeric(short type) {
    return KyRefResbuf::isInteger(type) || KyRefResbuf::isReal(type);
}

double numberOf(const resbuf& value) {
    switch (value.restype) {
        case KYRB_SHORT:
            return value.resval.rint;
        case KYRB_LONG:
            return value.resval.rlong;
        default:
            return value.resval.rreal;
    }
}

// The blank-separated words of a row's list of values allowed.
std::vector<KyString> allowedValues(const KyRefSysVarRow& row) {
    std::vector<KyString> values;
    const KyString all(row.allowed);
    int start = 0;
    while (start < all.length()) {
        int end = all.find(L' ', start);
        if (end < 0) {
            end = all.length();
        }
        if (end > start) {
            values.push_back(all.mid(start, end - start));
        }
        start = end + 1;
    }
    return values;
}

bool readNumber(const wchar_t* text, double& value) {
    if (text == nullptr || *text == L'\0') {
        return false;
    }
    wchar_t* end = nullptr;
    const double read = std::wcstod(text, &end);
    if (end == text || *end != L'\0' || !std::isfinite(read)) {
        return false;
    }
    value = read;
    return true;
}

bool readInteger(const wchar_t* text, long long& value) {
    if (text == nullptr || *text == L'\0') {
        return false;
    }
    wchar_t* end = nullptr;
    const long long read = std::wcstoll(text, &end, 10);
    if (end == text || *end != L'\0') {
        return false;
    }
    value = read;
    return true;
}

bool inRange(const KyRefSysVarRow& row, double value) {
    if (row.allowed != nullptr) {
        for (const KyString& allowed : allowedValues(row)) {
            double number = 0.0;
            if (readNumber(allowed, number) && number == value) {
                return true;
            }
        }
        return false;
    }
    if (row.has(kSysVarAboveMinimum)) {
        return value > row.minimum;
    }
    if (row.has(kSysVarFromMinimum)) {
        return value >= row.minimum;
    }
    return row.minimum > row.maximum || (value >= row.minimum && value <= row.maximum);
}

bool textAllowed(const KyRefSysVarRow& row, const wchar_t* text) {
    if (row.allowed == nullptr) {
        return true;
    }
    for (const KyString& allowed : allowedValues(row)) {
        if (allowed.compareNoCase(text) == 0) {
            return true;
        }
    }
    return false;
}

const wchar_t* typeText(short type) {
    if (KyRefResbuf::isInteger(type)) {
        return L"Requires an integer.";
    }
    if (KyRefResbuf::isReal(type)) {
        return L"Requires a number.";
    }
    if (KyRefResbuf::isPoint(type)) {
        return L"Requires a point.";
    }
    return L"Requires a text.";
}

// `value` as a record of the row's type, checked against its range.
Status coerce(const KyRefSysVarRow& row, const resbuf& value, KyRefResbufPtr& out,
              KyString& error) {
    const short type = row.type;
    const bool integerRow = KyRefResbuf::isInteger(type);
    if (integerRow                   ? !KyRefResbuf::isInteger(value.restype)
        : KyRefResbuf::isReal(type)  ? !isNumeric(value.restype)
        : KyRefResbuf::isPoint(type) ? !KyRefResbuf::isPoint(value.restype)
                                     : value.restype != KYRB_STRING) {
        error = typeText(type);
        return Status::kWrongType;
    }
    if (integerRow || KyRefResbuf::isReal(type)) {
        const double number = numberOf(value);
        const bool fits = type != KYRB_SHORT || (number >= SHRT_MIN && number <= SHRT_MAX);
        if (!std::isfinite(number) || !fits || !inRange(row, number)) {
            error = KyRefSysVarStore::rangeText(row);
            return Status::kOutOfRange;
        }
        if (type == KYRB_SHORT) {
            out = KyRefResbuf::makeShort(static_cast<short>(number));
        } else if (type == KYRB_LONG) {
            out = KyRefResbuf::makeLong(static_cast<int>(number));
        } else {
            out = KyRefResbuf::makeReal(number, type);
        }
        return Status::kOk;
    }
    if (KyRefResbuf::isPoint(type)) {
        const KyGePoint3d point(value.resval.rpoint[0], value.resval.rpoint[1],
                                value.restype == KYRB_3DPOINT ? value.resval.rpoint[2] : 0.0);
        out = KyRefResbuf::makePoint(point, type);
        return Status::kOk;
    }
    const wchar_t* text = value.resval.rstring != nullptr ? value.resval.rstring : L"";
    if (!textAllowed(row, text)) {
        error = KyRefSysVarStore::rangeText(row);
        return Status::kOutOfRange;
    }
    out = KyRefResbuf::makeString(text);
    return Status::kOk;
}

// A header value as a record of the row's type; false when it holds no such
// value (a file may give an integer for a real and so on).
bool fromHeader(const KyRefSysVarRow& row, const KyRxValue& value, KyRefResbufPtr& out) {
    double number = 0.0;
    bool numeric = true;
    if (const auto* s = valueCast<short>(&value)) {
        number = *s;
    } else if (const auto* i = valueCast<int>(&value)) {
        number = *i;
    } else if (const auto* u = valueCast<unsigned int>(&value)) {
        number = *u;
    } else if (const auto* d = valueCast<double>(&value)) {
        number = *d;
    } else if (const auto* b = valueCast<bool>(&value)) {
        number = *b ? 1.0 : 0.0;
    } else {
        numeric = false;
    }
    if (row.type == KYRB_SHORT || row.type == KYRB_LONG) {
        if (!numeric) {
            return false;
        }
        out = row.type == KYRB_SHORT ? KyRefResbuf::makeShort(static_cast<short>(number))
                                     : KyRefResbuf::makeLong(static_cast<int>(number));
        return true;
    }
    if (KyRefResbuf::isReal(row.type)) {
        if (!numeric) {
            return false;
        }
        out = KyRefResbuf::makeReal(number, row.type);
        return true;
    }
    if (KyRefResbuf::isPoint(row.type)) {
        const auto* point = valueCast<KyGePoint3d>(&value);
        if (point == nullptr) {
            return false;
        }
        out = KyRefResbuf::makePoint(*point, row.type);
        return true;
    }
    if (const auto* text = valueCast<KyString>(&value)) {
        out = KyRefResbuf::makeString(*text);
        return true;
    }
    if (const auto* text = valueCast<const wchar_t*>(&value)) {
        out = KyRefResbuf::makeString(*text);
        return true;
    }
    return false;
}

KyRxValue toHeader(const resbuf& value) {
    switch (value.restype) {
        case KYRB_SHORT:
            return KyRxValue(value.resval.rint);
        case KYRB_LONG:
            return KyRxValue(static_cast<int>(value.resval.rlong));
        case KYRB_STRING:
            return KyRxValue(KyString(value.resval.rstring));
        case KYRB_POINT:
        case KYRB_3DPOINT:
            return KyRxValue(
                KyGePoint3d(value.resval.rpoint[0], value.resval.rpoint[1],
                            value.restype == KYRB_3DPOINT ? value.resval.rpoint[2] : 0.0));
        default:
            return KyRxValue(value.resval.rreal);
    }
}

// A variable whose accessor reads and writes it where it lives.
bool keptByAccessor(const KyRefSysVarRow& row) {
    return row.accessor != nullptr && row.accessor->get != nullptr && row.accessor->set != nullptr;
}

KyRefResbufPtr initialValue(const KyRefSysVarRow& row) {
    KyRefResbufPtr value;
    KyRefSysVarStore::parse(row, row.initial, value);
    return value;
}

void setError(KyString* error, const KyString& text) {
    if (error != nullptr) {
        *error = text;
    }
}

}  // namespace

KyRefSysVarStore::KyRefSysVarStore(KyRefHost* host) : m_host(host) {}

KyDbDatabase* KyRefSysVarStore::currentDatabase() const {
    return m_host != nullptr ? m_host->documents().currentDatabase() : nullptr;
}

KyRefSysVarStatus KyRefSysVarStore::get(const wchar_t* name, KyRefResbufPtr& out) const {
    const KyRefSysVarRow* row = KyRefSysVarTable::find(name);
    if (row == nullptr) {
        return Status::kUnknownName;
    }
    return read(*row, row->isDrawing() ? currentDatabase() : nullptr, out);
}

KyRefSysVarStatus KyRefSysVarStore::set(const wchar_t* name, const resbuf& value, unsigned flags,
                                        KyString* error) {
    const KyRefSysVarRow* row = KyRefSysVarTable::find(name);
    if (row == nullptr) {
        setError(error, KyString::formatted(L"Unknown variable name \"%ls\".", name));
        return Status::kUnknownName;
    }
    return write(*row, row->isDrawing() ? currentDatabase() : nullptr, value, flags, error);
}

KyRefSysVarStatus KyRefSysVarStore::getDrawing(KyDbDatabase* database, const wchar_t* name,
                                               KyRefResbufPtr& out) {
    const KyRefSysVarRow* row = KyRefSysVarTable::find(name);
    if (row == nullptr || !row->isDrawing()) {
        return Status::kUnknownName;
    }
    const KyRefSysVarStore none(nullptr);
    return none.read(*row, database, out);
}

KyRefSysVarStatus KyRefSysVarStore::setDrawing(KyDbDatabase* database, const wchar_t* name,
                                               const resbuf& value, unsigned flags,
                                               KyString* error) {
    const KyRefSysVarRow* row = KyRefSysVarTable::find(name);
    if (row == nullptr || !row->isDrawing()) {
        setError(error, KyString::formatted(L"Unknown drawing variable \"%ls\".", name));
        return Status::kUnknownName;
    }
    KyRefSysVarStore none(nullptr);
    return none.write(*row, database, value, flags, error);
}

KyRefSysVarStatus KyRefSysVarStore::read(const KyRefSysVarRow& row, KyDbDatabase* database,
                                         KyRefResbufPtr& out) const {
    if (row.isDrawing() && database == nullptr) {
        return Status::kNoDocument;
    }
    if (row.accessor != nullptr && row.accessor->get != nullptr) {
        return row.accessor->get(KyRefSysVarAccess{row, database, this}, out);
    }
    if (row.isDrawing()) {
        KyRxValue value;
        if (database->getHeaderVar(row.name, value) == Kyro::eOk && fromHeader(row, value, out)) {
            return Status::kOk;
        }
    } else if (const auto found = m_session.find(&row); found != m_session.end()) {
        out = KyRefResbuf::copy(*found->second);
        return Status::kOk;
    }
    out = initialValue(row);
    return Status::kOk;
}

KyRefSysVarStatus KyRefSysVarStore::write(const KyRefSysVarRow& row, KyDbDatabase* database,
                                          const resbuf& value, unsigned flags, KyString* error) {
    if (row.has(kSysVarComputed) || (row.has(kSysVarReadOnly) && (flags & kIgnoreReadOnly) == 0)) {
        setError(error, KyString::formatted(L"%ls is read-only.", row.name));
        return Status::kReadOnly;
    }
    if (row.isDrawing() && database == nullptr) {
        setError(error, KyString(L"No drawing is open."));
        return Status::kNoDocument;
    }
    KyString message;
    KyRefResbufPtr checked;
    Status status = coerce(row, value, checked, message);
    const KyRefSysVarAccess access{row, database, this};
    if (status == Status::kOk && row.accessor != nullptr && row.accessor->check != nullptr) {
        status = row.accessor->check(access, *checked, message);
    }
    if (status != Status::kOk) {
        setError(error, message);
        return status;
    }
    // An equal value is no change: nothing is written, and nobody hears of it.
    KyRefResbufPtr current;
    if (read(row, database, current) == Status::kOk && kyutRbEqual(current.get(), checked.get())) {
        return Status::kOk;
    }
    if (!row.isDrawing()) {
        if (row.accessor != nullptr && row.accessor->set != nullptr) {
            status = row.accessor->set(access, *checked, message);
        } else {
            m_session[&row] = std::move(checked);
        }
        setError(error, message);
        return status;
    }
    KyDbUndoController* undo = database->undoController();
    const bool recording = undo->isRecording();
    if ((flags & kWithoutUndoRecord) != 0) {
        undo->setRecording(false);
    }
    if (row.accessor != nullptr && row.accessor->set != nullptr) {
        status = row.accessor->set(access, *checked, message);
    } else {
        const Kyro::ErrorStatus written = database->setHeaderVar(row.name, toHeader(*checked));
        if (written == Kyro::eLockViolation) {
            message = L"The drawing is not locked for writing.";
            status = Status::kRefused;
        } else if (written != Kyro::eOk) {
            message = L"The drawing refused the value.";
            status = Status::kRefused;
        }
    }
    undo->setRecording(recording);
    setError(error, message);
    return status;
}

int KyRefSysVarStore::hostResult(KyRefSysVarStatus status) {
    switch (status) {
        case Status::kOk:
            return KYRT_NORM;
        case Status::kNoDocument:
        case Status::kRefused:
            return KYRT_ERROR;
        default:
            return KYRT_REJECTED;
    }
}

bool KyRefSysVarStore::parse(const KyRefSysVarRow& row, const wchar_t* text, KyRefResbufPtr& out) {
    KyString trimmed = KyString(text).trim();
    const short type = row.type;
    if (KyRefResbuf::isInteger(type)) {
        long long number = 0;
        if (!readInteger(trimmed, number) || number < INT_MIN || number > INT_MAX) {
            return false;
        }
        out = KyRefResbuf::makeLong(static_cast<int>(number));
        if (type == KYRB_SHORT && number >= SHRT_MIN && number <= SHRT_MAX) {
            out = KyRefResbuf::makeShort(static_cast<short>(number));
        }
        return true;
    }
    if (KyRefResbuf::isReal(type)) {
        double number = 0.0;
        if (!readNumber(trimmed, number)) {
            return false;
        }
        out = KyRefResbuf::makeReal(number, type);
        return true;
    }
    if (KyRefResbuf::isPoint(type)) {
        double coordinates[3] = {0.0, 0.0, 0.0};
        int count = 0;
        int start = 0;
        while (count < 3) {
            int comma = trimmed.find(L',', start);
            const bool last = comma < 0;
            if (last) {
                comma = trimmed.length();
            }
            if (!readNumber(trimmed.mid(start, comma - start).trim(), coordinates[count])) {
                return false;
            }
            ++count;
            start = comma + 1;
            if (last) {
                break;
            }
        }
        if (count < 2 || start <= trimmed.length()) {
            return false;
        }
        out = KyRefResbuf::makePoint(KyGePoint3d(coordinates[0], coordinates[1], coordinates[2]),
                                     count == 3 ? KYRB_3DPOINT : KYRB_POINT);
        return true;
    }
    if (trimmed.length() >= 2 && trimmed.kwszPtr()[0] == L'"' &&
        trimmed.kwszPtr()[trimmed.length() - 1] == L'"') {
        trimmed = trimmed.mid(1, trimmed.length() - 2);
    }
    out = KyRefResbuf::makeString(trimmed);
    return true;
}

KyString KyRefSysVarStore::format(const resbuf& value) {
    switch (value.restype) {
        case KYRB_SHORT:
            return KyString::formatted(L"%d", static_cast<int>(value.resval.rint));
        case KYRB_LONG:
            return KyString::formatted(L"%d", static_cast<int>(value.resval.rlong));
        case KYRB_REAL:
        case KYRB_ANGLE:
        case KYRB_ORIENT:
            return KyString::formatted(L"%.6g", value.resval.rreal);
        case KYRB_POINT:
            return KyString::formatted(L"%.6g,%.6g", value.resval.rpoint[0],
                                       value.resval.rpoint[1]);
        case KYRB_3DPOINT:
            return KyString::formatted(L"%.6g,%.6g,%.6g", value.resval.rpoint[0],
                                       value.resval.rpoint[1], value.resval.rpoint[2]);
        case KYRB_STRING:
            return KyString::formatted(
                L"\"%ls\"", value.resval.rstring != nullptr ? value.resval.rstring : L"");
        default:
            return KyString();
    }
}

KyString KyRefSysVarStore::rangeText(const KyRefSysVarRow& row) {
    if (row.allowed != nullptr) {
        KyString list;
        for (const KyString& value : allowedValues(row)) {
            if (!list.isEmpty()) {
                list.append(L", ");
            }
            list.append(value);
        }
        return KyString::formatted(L"Requires one of: %ls.", list.kwszPtr());
    }
    const bool integer = KyRefResbuf::isInteger(row.type);
    if (row.has(kSysVarAboveMinimum)) {
        return KyString::formatted(
            integer ? L"Requires an integer above %.0f." : L"Requires a number above %g.",
            row.minimum);
    }
    if (row.has(kSysVarFromMinimum)) {
        return KyString::formatted(
            integer ? L"Requires an integer of %.0f or more." : L"Requires a number of %g or more.",
            row.minimum);
    }
    if (row.minimum <= row.maximum) {
        return KyString::formatted(integer ? L"Requires an integer between %.0f and %.0f."
                                           : L"Requires a number between %g and %g.",
                                   row.minimum, row.maximum);
    }
    return KyString(typeText(row.type));
}

KyRefSysVarStore::Snapshot KyRefSysVarStore::snapshot() const {
    Snapshot values;
    KyDbDatabase* database = currentDatabase();
    for (const KyRefSysVarRow& row : KyRefSysVarTable::rows()) {
        if (row.has(kSysVarNotReported)) {
            continue;
        }
        KyRefResbufPtr value;
        if (read(row, row.isDrawing() ? database : nullptr, value) != Status::kOk) {
            value.reset();
        }
        values.emplace_back(&row, std::move(value));
    }
    return values;
}

std::vector<KyString> KyRefSysVarStore::changedSince(const Snapshot& before) const {
    std::vector<KyString> names;
    KyDbDatabase* database = currentDatabase();
    for (const auto& [row, old] : before) {
        KyRefResbufPtr now;
        if (read(*row, row->isDrawing() ? database : nullptr, now) != Status::kOk) {
            now.reset();
        }
        if (!kyutRbEqual(old.get(), now.get())) {
            names.emplace_back(row->name);
        }
    }
    return names;
}

KyRefSysVarStore::SessionValues KyRefSysVarStore::sessionValues() const {
    SessionValues values;
    for (const auto& [row, value] : m_session) {
        values.emplace(row, KyRefResbuf::copy(*value));
    }
    // A session variable that its accessor keeps elsewhere (a setting of the
    // platform) is taken as it reads now.
    for (const KyRefSysVarRow& row : KyRefSysVarTable::rows()) {
        if (!row.isDrawing() && keptByAccessor(row)) {
            KyRefResbufPtr value;
            if (read(row, nullptr, value) == Status::kOk) {
                values.emplace(&row, std::move(value));
            }
        }
    }
    return values;
}

void KyRefSysVarStore::restoreSessionValues(const SessionValues& values) {
    m_session.clear();
    for (const auto& [row, value] : values) {
        if (keptByAccessor(*row)) {
            KyString error;
            row->accessor->set(KyRefSysVarAccess{*row, nullptr, this}, *value, error);
        } else {
            m_session.emplace(row, KyRefResbuf::copy(*value));
        }
    }
}
