// KyDiLayerService: the host's layer manager settings and its questions to
// the user about the current layer.
#pragma once

#include "kydi/KyDiExport.h"

class KYDI_API KyDiLayerService {
public:
    // Answers of askTurnOnCurrentLayer.
    static constexpr int kTurnLayerOn = 1001;
    static constexpr int kLeaveLayerOff = 1002;

    virtual ~KyDiLayerService() = default;

    // Asks the user whether the current layer is to be on: kTurnLayerOn to
    // turn it on or keep it on, kLeaveLayerOff to let it be off; any other
    // answer means that the question was dismissed.
    virtual int askTurnOnCurrentLayer() = 0;
    // Tells the user that the current layer can't be frozen.
    virtual void reportCurrentLayerCantFreeze() = 0;
    // The flags with which a layer state is to be restored.
    virtual int restoreFlags() = 0;
    // True when the current layer filter is shown inverted.
    virtual bool isLayerFilterInverted() = 0;
    // True when the current layer filter is applied to the layer list.
    virtual bool isLayerFilterApplied() = 0;
};
