// KyDiManagerReactor: told when a refresh pass of the data item layer begins
// and when it has ended. A client that wants to act once per pass, after all
// collections and system variables have told their reactors, listens here.
#pragma once

#include "kydi/KyDiExport.h"

class KYDI_API KyDiManagerReactor {
public:
    virtual ~KyDiManagerReactor();

    // A refresh pass starts: nothing has been told yet in this pass.
    virtual void refreshStarting();
    // The pass has told everything it had to tell.
    virtual void refreshEnded();
};
