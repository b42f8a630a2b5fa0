#include "sysvars/KyUiImpSysVar.h"

#include "db/KyAxDocLock.h"
#include "kydi/KyDiDataValueReactor.h"
#include "kydi/KyDiEditorService.h"
#include "manager/host/KyDiHostAccess.h"
#include "sysvars/SysVarValue.h"

namespace {

using ReactorList =
    KyArray<KyDiDataValueReactor*, KyArrayMemCopyReallocator<KyDiDataValueReactor*>>;

constexpr int kReactorGrowLength = 8;

void release(resbuf*& record) {
    kyutRelRb(record);
    record = nullptr;
}

// True when the names of the running commands say that no command runs, or
// only the transparent SETVAR: then a value sent by command has been taken
// or refused by now.
bool noOtherCommandRuns(KyDiEditorService* editor) {
    resbuf* names = kyutNewRb(KYRB_NONE);
    bool idle = false;
    if (editor->getVar(L"CMDNAMES", names) == KYRT_NORM) {
        const KyString text(names->restype == KYRB_STRING ? names->resval.rstring : nullptr);
        idle = text.isEmpty() || text.compareNoCase(L"SETVAR") == 0;
    }
    kyutRelRb(names);
    return idle;
}

}  // namespace

KyUiImpSysVar::KyUiImpSysVar(const wchar_t* name, double minimum, double maximum)
    : m_minimum(minimum), m_maximum(maximum), m_name(name), m_reactors(0, kReactorGrowLength) {}

KyUiImpSysVar::~KyUiImpSysVar() {
    kyutRelRb(m_value);
    kyutRelRb(m_pendingValue);
}

Kyro::ErrorStatus KyUiImpSysVar::getValue(resbuf& out) const {
    const resbuf* current = currentValue();
    if (current == nullptr) {
        return Kyro::eNotApplicable;
    }
    out = *current;
    return Kyro::eOk;
}

Kyro::ErrorStatus KyUiImpSysVar::setValue(const resbuf& value, bool viaCommand) {
    if (SysVarValue::equal(&value, currentValue())) {
        return Kyro::eOk;
    }
    // Copied first: `value` may be a shallow copy of a record held here.
    resbuf* set = SysVarValue::copy(value);
    const Kyro::ErrorStatus status = subSetValue(*set, viaCommand);
    // Whatever came of it, nothing held here is known to be true any more.
    release(m_pendingValue);
    release(m_value);
    if (status != Kyro::eOk) {
        kyutRelRb(set);
        return status;
    }
    m_pendingValue = set;
    return Kyro::eOk;
}

void KyUiImpSysVar::clearValue() {
    release(m_value);
}

Kyro::ErrorStatus KyUiImpSysVar::addReactor(KyDiDataValueReactor* reactor) {
    m_reactors.append(reactor);
    return Kyro::eOk;
}

void KyUiImpSysVar::removeReactor(KyDiDataValueReactor* reactor) {
    m_reactors.remove(reactor);
}

Kyro::ErrorStatus KyUiImpSysVar::refresh() {
    release(m_pendingValue);
    bool valueChanged = false;
    const bool answered = reread(valueChanged);
    const bool active = subIsActive();
    const bool activeChanged = active != m_active;
    m_active = active;

    // Each walk goes over a copy: a reactor may add or remove reactors.
    if (valueChanged) {
        const ReactorList reactors = m_reactors;
        for (int i = 0; i < reactors.length(); ++i) {
            reactors[i]->valueChanged(m_value);
        }
    }
    if (activeChanged) {
        const ReactorList reactors = m_reactors;
        for (int i = 0; i < reactors.length(); ++i) {
            reactors[i]->activeChanged(m_active);
        }
    }
    return answered ? Kyro::eOk : Kyro::eNotApplicable;
}

void KyUiImpSysVar::rereadSilently() {
    release(m_pendingValue);
    bool changed = false;
    reread(changed);
}

bool KyUiImpSysVar::reread(bool& changed) {
    resbuf* read = kyutNewRb(KYRB_NONE);
    const bool answered = getVar(read) == KYRT_NORM;
    changed = answered && !SysVarValue::equal(read, m_value);
    if (changed) {
        kyutRelRb(m_value);
        m_value = read;
    } else {
        kyutRelRb(read);
    }
    return answered;
}

int KyUiImpSysVar::getVar(resbuf* out) {
    KyDiEditorService* editor = KyDiHostAccess::editor();
    return editor != nullptr ? editor->getVar(name(), out) : 0;
}

bool KyUiImpSysVar::subIsActive() {
    return true;
}

Kyro::ErrorStatus KyUiImpSysVar::subSetValue(const resbuf& value, bool viaCommand) {
    if (KyDiHostAccess::currentDocument() == kKyDiNoDocument) {
        return Kyro::eNoCurrentDocument;
    }
    KyDiEditorService* editor = KyDiHostAccess::editor();
    if (viaCommand) {
        if (editor != nullptr) {
            const KyString text = KyString::formatted(L"'%ls %ls\n", name(),
                                                      SysVarValue::commandText(value).kwszPtr());
            editor->sendCommand(text, false, false, true);
        }
        if (m_value != nullptr && m_value->restype == KYRB_SHORT) {
            cancelRefusedShortValue(value);
        }
        return Kyro::eOk;
    }
    if (editor == nullptr) {
        return Kyro::eInvalidInput;
    }
    int result = 0;
    {
        const KyAxDocLock lock;
        result = editor->setVar(name(), &value);
    }
    editor->prompt(L"");
    return result == KYRT_NORM ? Kyro::eOk : Kyro::eInvalidInput;
}

void KyUiImpSysVar::cancelRefusedShortValue(const resbuf& value) {
    KyDiEditorService* editor = KyDiHostAccess::editor();
    if (editor == nullptr || !noOtherCommandRuns(editor)) {
        return;
    }
    resbuf* read = kyutNewRb(KYRB_NONE);
    const bool taken = value.restype == KYRB_SHORT && getVar(read) == KYRT_NORM &&
                       read->restype == KYRB_SHORT && read->resval.rint == value.resval.rint;
    kyutRelRb(read);
    if (!taken) {
        editor->sendCommand(L"\x03", false, false, true);
    }
}
