// The host's system variables as runtime objects. A host installs its
// dictionary and fills it with its variables; get() answers null when the host
// has none.
#pragma once

#include <map>

#include "base/KyString.h"
#include "base/resbuf.h"
#include "rx/KyRxObject.h"

class KYPLATFORM_API KyRxVariable : public KyRxObject {
public:
    KYRX_DECLARE_MEMBERS(KyRxVariable);
    explicit KyRxVariable(const wchar_t* name);
    ~KyRxVariable() override;

    const wchar_t* name() const { return m_name.kwszPtr(); }
    // The current value; null before the first write. Owned by the variable.
    const resbuf* value() const { return m_value; }
    // Writes the variable. On refusal the status says why and `error`, when
    // given, gets a text for the user. `sender` is passed on to the host.
    Kyro::ErrorStatus setValue(const resbuf& value, void* sender, KyString* error,
                               bool disableUndoRecording);

protected:
    // Checks and applies a write; the default takes any value.
    virtual Kyro::ErrorStatus subSetValue(const resbuf& value, void* sender, KyString* error,
                                          bool disableUndoRecording);
    // Replaces the stored value with a copy of `value`.
    void storeValue(const resbuf& value);

private:
    KyString m_name;
    resbuf* m_value = nullptr;
};

class KYPLATFORM_API KyRxVariablesDictionary {
public:
    // The installed dictionary, null when the host has none.
    static KyRxVariablesDictionary* get();
    // Installs `dictionary` (null removes it); the host keeps ownership.
    static void install(KyRxVariablesDictionary* dictionary);

    KyRxVariablesDictionary() = default;
    KyRxVariablesDictionary(const KyRxVariablesDictionary&) = delete;
    KyRxVariablesDictionary& operator=(const KyRxVariablesDictionary&) = delete;
    virtual ~KyRxVariablesDictionary();

    // Case-insensitive lookup; null when the name is unknown.
    KyRxVariable* getVariable(const wchar_t* name) const;
    // Takes the variable over; false when the name is taken.
    bool addVariable(KyRxVariable* variable);
    int count() const { return static_cast<int>(m_variables.size()); }

private:
    std::map<KyString, KyRxVariable*, KyStringLessNoCase> m_variables;
};
