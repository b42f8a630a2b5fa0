// Not part of the interface: a command scope of the host's editor, opened
// for the length of a C++ scope, so that the writes within are one command
// for undo. Without an editor service (or without a name) it does nothing.
#pragma once

#include "kydi/KyDiEditorService.h"
#include "manager/host/KyDiHostAccess.h"

class EditorCommandScope {
public:
    explicit EditorCommandScope(const wchar_t* name) : m_name(name) {
        m_editor = m_name != nullptr ? KyDiHostAccess::editor() : nullptr;
        if (m_editor != nullptr) {
            m_editor->beginCommand(m_name);
        }
    }
    ~EditorCommandScope() {
        if (m_editor != nullptr) {
            m_editor->endCommand(m_name);
        }
    }
    EditorCommandScope(const EditorCommandScope&) = delete;
    EditorCommandScope& operator=(const EditorCommandScope&) = delete;

private:
    const wchar_t* m_name;
    KyDiEditorService* m_editor;
};
