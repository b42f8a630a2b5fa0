// Not part of the interface: the object reactor hub, through which a client
// watches one database object without being a database reactor itself. The
// database's notifications only leave marks on the watch; the refresh pass
// calls pass(), which tells the clients: an object erased or gone (the client
// then takes its watch back), its document no longer or again the current
// one, the object changed.
#pragma once

#include "base/KyroErrorStatus.h"
#include "db/KyDbObjectId.h"
#include "kydi/KyDiTypes.h"

class KyDiObjectReactor;

class ObjectReactorHub {
public:
    static Kyro::ErrorStatus add(const KyDbObjectId& id, KyDiObjectReactor* reactor);
    static Kyro::ErrorStatus remove(const KyDbObjectId& id, KyDiObjectReactor* reactor);

    // Tells the clients what the marks say, from the last watch to the first.
    static void pass();
    // `document` is going: its watches count as gone from here on.
    static void documentToBeDestroyed(KyDiDocument document);
    // Takes every watch off its object and deletes it.
    static void releaseAll();
};
