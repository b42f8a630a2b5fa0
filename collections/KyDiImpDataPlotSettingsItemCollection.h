// Not part of the interface: the named plot settings ("KYRO_PLOTSETTINGS") of the drawing, a plain
// dictionary collection under the dictionary's key.
#pragma once

#include "collections/KyDiImpDictionaryItemCollection.h"

class KyDiImpDataPlotSettingsItemCollection : public KyDiImpDictionaryItemCollection {
public:
    using KyDiImpDictionaryItemCollection::KyDiImpDictionaryItemCollection;
};
