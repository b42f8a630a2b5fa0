// Not part of the interface: who owns an item. Items of records (other than
// those of sub-entities) and value items of colours and transparencies belong
// to the manager's item cache and outlive every collection that shows them;
// every other item (also one the cache could not take, as before the layer
// started) belongs to whoever holds it.
#pragma once

class KyDiDynamicObject;

class DataItemOwnership {
public:
    // Deletes `item` unless the cache keeps it. Null does nothing.
    static void disposeDataItem(KyDiDynamicObject* item);
};
