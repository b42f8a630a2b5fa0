// KyDiManager: the door through which the host starts and stops the data item
// layer, and through which clients reach what it offers. A class of static
// operations only. Whatever a client gets from it belongs to the manager; a
// client deletes nothing it is given, and removes the reactors it added.
#pragma once

#include "base/KyroErrorStatus.h"
#include "kydi/KyDiExport.h"

class IKyRxEnumeration;
class KyDiCollection;
class KyDiContextManager;
class KyDiCurrencyTracker;
class KyDiDataItemReactor;
class KyDiEffectiveProperty;
class KyDiObservableCollection;
class KyDiExternalReferenceHost;
class KyDiHost;
class KyDiManagerReactor;
class KyDiObjectReactor;
class KyDbObjectId;
class KyDiSysVar;
class KyRxObject;
class KyRxPropertyBase;

class KYDI_API KyDiManager {
public:
    KyDiManager() = delete;

    // Starts the data item layer against `host`, which must stay valid until
    // uninitialize. Host events may arrive from inside this call on. The
    // layer starts once per process: a second start is not supported.
    static void initialize(KyDiHost* host);
    // Stops the data item layer: everything it made goes, its reactor is taken
    // back from the host, and its runtime classes are deleted.
    static void uninitialize();
    // The host given to initialize; it is kept after uninitialize.
    static KyDiHost* getHost();

    // The optional host of external reference display. May be given at any
    // time, also before initialize; not owned.
    static void initializeXRefHost(KyDiExternalReferenceHost* xrefHost);
    static void uninitializeXRefHost();
    static KyDiExternalReferenceHost* getXRefHost();

    // The known collection `name` ("LAYER", "LINETYPE", "KYRO_MATERIAL" ...),
    // made at its first demand and kept until uninitialize; null for a name
    // the system does not know (names are case-sensitive) and after
    // uninitialize.
    static KyDiObservableCollection* getKnownCollection(const wchar_t* name);
    // The same, but a name no row knows is taken as the path of keys of a
    // dictionary ("SITE\NOTES"), listed with `tracker` (not owned). It does
    // not look for an existing collection first: a second call makes a new
    // one, which the name then answers.
    static KyDiObservableCollection* getKnownCollection(const wchar_t* name,
                                                        KyDiCurrencyTracker* tracker);
    // The known collection that a reference path reaches
    // ("/LinetypeTableId/Items"); null for a path no row gives.
    static KyDiObservableCollection* getKnownCollectionFromPath(const wchar_t* path);
    // The values of an enumeration as items: with a current item for an
    // enumeration that a tracker follows, a plain list for any other. The
    // same object for the same enumeration.
    static KyDiCollection* getCollection(const IKyRxEnumeration* enumeration);

    // The effective property: the layer, colour, styles ... that apply now.
    // It exists from initialize to uninitialize, and is null outside.
    static KyDiEffectiveProperty* getEffectiveProperty();

    // The context manager, made at its first demand (also before initialize)
    // and kept until uninitialize.
    static KyDiContextManager* getContextManager();

    // The system variable `name` (case-sensitive), made at the first request
    // and kept until uninitialize. Null when the host can't read the variable:
    // then nothing is kept, and the next request asks the host again.
    static KyDiSysVar* getSysVar(const wchar_t* name);

    // Watches the object of `id` for `reactor`, which is told at the next
    // refresh pass after the object changed, was erased or left memory, and
    // when its document stops or starts being the current one. Answers the
    // status of opening the object for read (an erased object can't be
    // watched). Two reactors on one object make two records.
    static Kyro::ErrorStatus addObjectReactor(const KyDbObjectId& id, KyDiObjectReactor* reactor);
    // Takes the watch back; `id` may be the id of an object erased since.
    // eOk, or a status other than eOk for a pair that is not watched.
    static Kyro::ErrorStatus removeObjectReactor(const KyDbObjectId& id,
                                                 KyDiObjectReactor* reactor);

    // A refresh pass that is never held back: everything that changed since
    // the last pass is read and told to the reactors.
    static void refresh();

    // The property that `path` names, reached from `object` step by step;
    // null when a step can't be followed.
    static const KyRxPropertyBase* parseReference(const wchar_t* path, const KyRxObject* object);

    // Reactors told when a data item is destroyed. Null is ignored; a reactor
    // added twice is told twice; removal takes the first occurrence.
    static void addReactor(KyDiDataItemReactor* reactor);
    static void removeReactor(KyDiDataItemReactor* reactor);
    // Reactors told at the start and the end of every refresh pass, with the
    // same rules.
    static void addReactor(KyDiManagerReactor* reactor);
    static void removeReactor(KyDiManagerReactor* reactor);
};
