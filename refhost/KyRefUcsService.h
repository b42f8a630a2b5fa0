// KyRefUcsService: the user coordinate system of the current drawing, as its
// variable UCSNAME names it: a UCS record of the drawing, or World (an empty
// name) or one of the orthographic planes, which have no record.
#pragma once

#include "kydi/KyDiUcsService.h"

class KyRefHost;

class KyRefUcsService : public KyDiUcsService {
public:
    explicit KyRefUcsService(KyRefHost& host);

    Kyro::ErrorStatus getCurrent(KyString& name, KyDbObjectId& id) override;

private:
    KyRefHost& m_host;
};
