// Not part of the interface: a context that stands for one live runtime
// object, which it owns. Its members are those of the object that a palette
// shows; reads and writes go to the object (through it when it is a proxy
// itself, so that contexts stack), and a write reports the member's name as a
// change, whatever its outcome. Made by createKyDiRxObjectContext and deleted
// by deleteKyDiRxObjectContext; the manager neither builds nor deletes it.
#pragma once

#include "kydi/KyDiContextBase.h"
#include "kydi/KyDiProxy.h"

class KyDiRxObjectContext : public KyDiContextBase, public KyDiProxy {
public:
    static KyRxClass* desc();
    KyRxClass* isA() const override;

    KyDiRxObjectContext(KyRxObject* object, const wchar_t* name);
    ~KyDiRxObjectContext() override;

    // eNullObjectPointer while no object is held.
    Kyro::ErrorStatus getValue(const KyRxPropertyBase* property, KyRxValue& value, int index,
                               const wchar_t* key) override;
    Kyro::ErrorStatus setValue(const KyRxPropertyBase* property, const KyRxValue& value, int index,
                               const wchar_t* key) override;
    KyRxValueIterator* newValueIterator(const KyRxPropertyBase* property) override;

    // The object goes with the database.
    void subDatabaseToBeDestroyed(void* database) override;

protected:
    KyRxMemberIterator* subNewMemberIterator() override;
    bool subIsActive() const override;

private:
    KyRxObject* m_object;
};
