// KyDiRenderService: the drawing's render presets and the host's render settings.
#pragma once

#include "base/KyArray.h"
#include "base/KyString.h"
#include "base/KyroErrorStatus.h"
#include "db/KyDbObjectId.h"
#include "kydi/KyDiExport.h"

class KyDbDatabase;

class KYDI_API KyDiRenderService {
public:
    // Where findPreset looks.
    static constexpr int kDrawingPresets = 0;

    virtual ~KyDiRenderService() = default;

    // The name of the current render preset.
    virtual Kyro::ErrorStatus getCurrentPresetName(KyString& name) = 0;
    // Makes the preset named `name` current.
    virtual Kyro::ErrorStatus setCurrentPreset(const KyString& name) = 0;
    // The id of the preset named `name`, among the drawing's presets for
    // kDrawingPresets (other values of `where` belong to the host).
    virtual Kyro::ErrorStatus findPreset(int where, const KyString& name, KyDbObjectId& id) = 0;
    // Appends the render presets of `database` that are to be listed, in display order.
    virtual Kyro::ErrorStatus getPresetIds(KyDbDatabase* database, KyArray<KyDbObjectId>& ids) = 0;
    // The dictionary that holds the render presets of `database`.
    virtual Kyro::ErrorStatus getPresetDictionaryId(KyDbDatabase* database,
                                                    KyDbObjectId& owner) = 0;
    // The size of the render output, as the host writes it.
    virtual Kyro::ErrorStatus getOutputSize(KyString& text) = 0;
    // Shows (true) or hides the render settings in the host.
    virtual Kyro::ErrorStatus setDisplayProperties(bool display) = 0;
};
