// KyRefVariable: one system variable of the reference host as a runtime
// object of the variables dictionary. A write through it goes through the
// host's store, as a write by the host itself: the read-only flag of the
// ordinary path does not hold it back, the type, range and drawing checks do.
// value() holds the last value written through it.
#pragma once

#include "rx/KyRxVariablesDictionary.h"

class KyRefHost;

class KyRefVariable : public KyRxVariable {
public:
    KyRefVariable(const wchar_t* name, KyRefHost& host);

protected:
    Kyro::ErrorStatus subSetValue(const resbuf& value, void* sender, KyString* error,
                                  bool disableUndoRecording) override;

private:
    KyRefHost& m_host;
};
