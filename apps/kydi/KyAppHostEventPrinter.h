// KyAppHostEventPrinter: `watch host`. A reactor on the reference host beside
// the data item layer's own, so it hears every event the host raises to the
// system, and prints each as one line: "host", the event's name, then its
// arguments ("host sysVarChanged CLAYER true", "host commandEnded -LAYER"),
// names in the program's value forms and documents by their names.
// The host calls it after the layer's reactor, which it joined later.
#pragma once

#include <ostream>

#include "KyRefHostEventLines.h"

class KyRefHost;

class KyAppHostEventPrinter : public KyRefHostEventLines {
public:
    KyAppHostEventPrinter(KyRefHost& host, std::ostream& out);

protected:
    void line(const std::string& text) override;
    std::string nameText(const wchar_t* name) const override;
    std::string documentText(KyDiDocument document) const override;

private:
    KyRefHost& m_host;
    std::ostream& m_out;
};
