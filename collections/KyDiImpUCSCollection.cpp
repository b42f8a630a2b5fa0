#include "collections/KyDiImpUCSCollection.h"

void KyDiImpUCSCollection::subUcsChanged() {
    requestCurrencyCheck();
}
