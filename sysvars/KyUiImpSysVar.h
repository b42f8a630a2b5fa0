// Not part of the interface: the implementation behind KyDiSysVar.
//
// It caches the host's value of one variable, the value just set through it
// (until a refresh confirms it), and whether the variable may be offered now.
// Subclasses change how the value is read, when the variable is active and
// how it is written.
#pragma once

#include "base/KyArray.h"
#include "base/KyString.h"
#include "base/KyroErrorStatus.h"
#include "base/resbuf.h"

class KyDiDataValueReactor;

class KyUiImpSysVar {
public:
    KyUiImpSysVar(const wchar_t* name, double minimum, double maximum);
    virtual ~KyUiImpSysVar();
    KyUiImpSysVar(const KyUiImpSysVar&) = delete;
    KyUiImpSysVar& operator=(const KyUiImpSysVar&) = delete;

    const wchar_t* name() const { return m_name.kwszPtr(); }
    double minimum() const { return m_minimum; }
    double maximum() const { return m_maximum; }
    bool isActive() const { return m_active; }

    // The value just set, or else the last value read; null when neither.
    const resbuf* currentValue() const {
        return m_pendingValue != nullptr ? m_pendingValue : m_value;
    }
    Kyro::ErrorStatus getValue(resbuf& out) const;
    Kyro::ErrorStatus setValue(const resbuf& value, bool viaCommand);
    void clearValue();

    Kyro::ErrorStatus addReactor(KyDiDataValueReactor* reactor);
    void removeReactor(KyDiDataValueReactor* reactor);

    // The refresh step: the host's word replaces a value just set, the value
    // and the activity are read anew, and the reactors hear what changed,
    // the value first. eOk when the host answered the read; otherwise the
    // last value stays.
    Kyro::ErrorStatus refresh();
    // The value part of the refresh step, with nobody told.
    void rereadSilently();

protected:
    // Reads the variable into `out`; KYRT_NORM when read. Through the
    // editor service; 0 without one.
    virtual int getVar(resbuf* out);
    virtual bool subIsActive();
    // Writes `value` to the host, as command text or directly.
    virtual Kyro::ErrorStatus subSetValue(const resbuf& value, bool viaCommand);

private:
    // Reads the host and takes the answer when it differs from the value
    // held (`changed`). Answers whether the host answered the read; a refused
    // read keeps the value held.
    bool reread(bool& changed);
    // Sends the cancel character when a short value sent by command has not
    // taken effect, so that the host is not left waiting at a prompt.
    void cancelRefusedShortValue(const resbuf& value);

    double m_minimum;
    double m_maximum;
    KyString m_name;
    KyArray<KyDiDataValueReactor*, KyArrayMemCopyReallocator<KyDiDataValueReactor*>> m_reactors;
    resbuf* m_value = nullptr;
    resbuf* m_pendingValue = nullptr;
    bool m_active = true;
};
