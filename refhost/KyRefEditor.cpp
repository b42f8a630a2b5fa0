#include "KyRefEditor.h"

#include "KyRefCommandLine.h"
#include "KyRefCommandScope.h"
#include "KyRefCommandTable.h"
#include "KyRefDocumentManager.h"
#include "KyRefHost.h"
#include "KyRefLanguage.h"
#include "KyRefSysVarStore.h"

KyRefEditor::KyRefEditor(KyRefHost& host) : m_host(host), m_interpreter(host, host.commandLine()) {}

KyRefEditor::~KyRefEditor() {
    // Scopes left open close without events: the host is going.
    while (!m_scopes.empty()) {
        m_scopes.back().scope->commit();
        m_scopes.back().scope->close();
        m_scopes.pop_back();
    }
}

void KyRefEditor::closeScopes(KyRefDocument& document) {
    std::erase_if(m_scopes, [&document](Scope& open) {
        if (open.scope->document() != &document) {
            return false;
        }
        open.scope->commit();
        open.scope->close();
        return true;
    });
}

Kyro::ErrorStatus KyRefEditor::sendCommand(const wchar_t* text, bool flag1, bool flag2,
                                           bool flag3) {
    if (text == nullptr) {
        return Kyro::eInvalidInput;
    }
    m_sent.push_back(SentCommand{KyString(text), flag1, flag2, flag3});
    m_interpreter.queue(text);
    return Kyro::eOk;
}

int KyRefEditor::getVar(const wchar_t* name, resbuf* out) {
    if (out == nullptr) {
        return KYRT_ERROR;
    }
    if (name != nullptr &&
        m_variablesAskedKeys.insert(KyString(name).makeUpper().kwszPtr()).second) {
        m_variablesAsked.emplace_back(name);
    }
    KyRefResbufPtr value;
    const KyRefSysVarStatus status = m_host.sysVars().get(name, value);
    if (status == KyRefSysVarStatus::kOk) {
        KyRefResbuf::fill(*out, *value);
    }
    return KyRefSysVarStore::hostResult(status);
}

int KyRefEditor::setVar(const wchar_t* name, const resbuf* value) {
    if (value == nullptr) {
        return KYRT_ERROR;
    }
    return KyRefSysVarStore::hostResult(m_host.setVariable(name, *value));
}

void KyRefEditor::prompt(const wchar_t* text) {
    if (text == nullptr || text[0] == L'\0') {
        m_host.commandLine().endLine();
    } else {
        m_host.commandLine().write(text);
    }
}

void KyRefEditor::beginCommand(const wchar_t* name) {
    const KyString global(name);
    m_scopes.push_back(
        Scope{global, std::make_unique<KyRefCommandScope>(m_host, m_host.documents().current(),
                                                          localCommandName(global))});
    m_host.events().raiseCommandWillStart(global);
}

void KyRefEditor::endCommand(const wchar_t* name) {
    if (m_scopes.empty() || m_scopes.back().name.compareNoCase(name) != 0) {
        return;
    }
    Scope ended = std::move(m_scopes.back());
    m_scopes.pop_back();
    ended.scope->commit();
    const std::vector<KyString> changed = ended.scope->close();
    m_host.raiseVariableChanges(changed);
    m_host.events().raiseCommandEnded(ended.name);
    m_host.events().raiseRefreshNeeded(false);
}

const wchar_t* KyRefEditor::localCommandName(const wchar_t* name) {
    const KyRefCommandRow* row = KyRefCommandTable::findGlobal(name);
    m_localName = row != nullptr ? KyString(KyRefLanguage::pick(row->globalName, row->localName))
                                 : KyString(name);
    return m_localName.kwszPtr();
}

KyString KyRefEditor::commandNames() const {
    KyString names = m_interpreter.commandNames();
    for (const Scope& scope : m_scopes) {
        if (!names.isEmpty()) {
            names.append(L'\'');
        }
        names.append(scope.name);
    }
    return names;
}

std::vector<KyRefEditor::SentCommand> KyRefEditor::takeSentCommands() {
    std::vector<SentCommand> sent = std::move(m_sent);
    m_sent.clear();
    return sent;
}
