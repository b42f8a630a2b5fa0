#include "kydi/KyUiAddNotifyHandler.h"

#include "manager/KyDiManagerState.h"

void KyUiAddNotifyHandler(void (*handler)(), bool add) {
    KyArray<void (*)()>& handlers = kydiManagerState().notifyHandlers;
    if (add) {
        handlers.append(handler);
    } else {
        handlers.remove(handler);
    }
}
