// KyDbLayerState: one saved layer state, an entry of the layer states
// dictionary (KyDbLayerStateManager). Its key in that dictionary is its name.
// It holds a description, a mask and one row for each layer it saved: the
// layer's name and the properties a restore gives back.
//
// The mask tells which properties the state leaves out, and whether the state
// is hidden (KyDbLayerStateManager lists the bits). A hidden state carries bit
// 0x8000 together with the sign bit, so its mask is negative; setMask sets or
// clears the sign bit after bit 0x8000, whatever the caller gave.
//
// Rows name their layer, linetype and plot style by text, not by id: a state
// outlives the layers and linetypes it names, and a restore passes by what
// the drawing no longer has. Layer names are unique in a state without regard
// to case.
//
// Every setter needs a write-open (eWasNotOpenForWrite), changes nothing for
// an equal value, and refuses what a layer can't take (eInvalidInput): an
// empty name, a colour that is not an index or a true colour, a lineweight
// other than a standard weight or Default, a transparency other than an
// alpha; two rows for one layer answer eDuplicateKey.
#pragma once

#include <vector>

#include "KyPlatformExport.h"
#include "db/KyCmColor.h"
#include "db/KyCmTransparency.h"
#include "db/KyDbEnums.h"
#include "db/KyDbObject.h"

class KYPLATFORM_API KyDbLayerState : public KyDbObject {
public:
    KYRX_DECLARE_MEMBERS(KyDbLayerState);

    // One layer as the state keeps it; a new row holds the values of a new
    // layer.
    struct Layer {
        Layer();
        bool operator==(const Layer& other) const;

        KyString name;
        bool off = false;
        bool frozen = false;
        bool locked = false;
        bool plottable = true;
        KyCmColor color;
        KyString linetype;
        KyDb::LineWeight lineWeight = KyDb::kLnWtByLwDefault;
        KyCmTransparency transparency;
        KyString plotStyle;
    };

    KyDbLayerState();
    ~KyDbLayerState() override;

    const KyString& description() const { return m_description; }
    Kyro::ErrorStatus setDescription(const wchar_t* description);

    int mask() const { return m_mask; }
    Kyro::ErrorStatus setMask(int mask);
    bool isHidden() const { return m_mask < 0; }

    const std::vector<Layer>& layers() const { return m_layers; }
    Kyro::ErrorStatus setLayers(const std::vector<Layer>& layers);
    // The row of `name` (without regard to case), null when none.
    const Layer* findLayer(const wchar_t* name) const;

    // A restore of the state counts as a change of it, so that its reactors
    // hear modified and objectClosed at the close: what lists the states
    // learns that the drawing may match another state now. Needs a
    // write-open.
    Kyro::ErrorStatus noteRestored();

    // The mask as a state keeps it: the sign bit set exactly when bit 0x8000
    // (hidden) is.
    static int normalizedMask(int mask);

protected:
    void subSaveState(KyDbStateFiler& filer) const override;
    Kyro::ErrorStatus subRestoreState(KyDbStateFiler& filer) override;

private:
    KyString m_description;
    int m_mask = 0;
    std::vector<Layer> m_layers;
};
