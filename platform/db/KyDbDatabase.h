// KyDbDatabase: one drawing. It owns its objects (KyDbObject.h tells the
// rules of opening, erasing and notifying), hands out their handles, keeps the
// drawing variables of its header, the symbol tables and the named objects
// dictionary, and records undo.
//
// A database is made as a new drawing, with the standard content of a new
// drawing (KyDbStandardContent.h), or empty, with only its eight symbol tables
// and its named objects dictionary, for a reader to fill.
//
// How a reader builds a drawing with the handles of a file:
//   auto* db = new KyDbDatabase(false);   // tables and root dictionary only
//   db->setObjectHandle(db->namedObjectsDictionaryId(), rootHandle);
//   layerTable->add(id, record, recordHandle);        // KyDbSymbolTable
//   dictionary->setAt(key, object, id, entryHandle);  // KyDbDictionary
//   block->appendKyDbEntity(id, entity, entityHandle);
//   db->addKyDbObject(id, object, handle);            // an object owned by no container
//   KyDbStandardContent::add(db, parts);              // what the file left out
// A handle taken by another object answers eHandleInUse. The tables and the
// root dictionary of an empty database hold provisional handles: a handle
// given by the reader that one of them holds is moved out of its way to the
// handseed, so the file's handles always win.
//
// Writes. A database can require the document lock (setLockRequired, which
// a host sets on the databases of its documents): then every write-open, every
// append through a write-open container and every header write outside a
// KyAxDocLock answers eLockViolation. A database made in a test needs none.
//
// Deletion: database reactors hear goodbye(database), the transient reactors
// of every object goodbye(object), with all objects still in memory; then the
// objects leave memory, and their ids answer isValid() false, database() null,
// and open with eInvalidObjectId.
#pragma once

#include <cstdint>
#include <unordered_map>
#include <vector>

#include "KyPlatformExport.h"
#include "base/KyArray.h"
#include "base/KyroErrorStatus.h"
#include "db/KyCmColor.h"
#include "db/KyCmTransparency.h"
#include "db/KyDbEnums.h"
#include "db/KyDbHandle.h"
#include "db/KyDbObjectId.h"
#include "rx/KyRxObject.h"
#include "rx/KyRxValue.h"

class KyDbDatabaseReactor;
class KyDbDictionary;
class KyDbHeader;
class KyDbLayerStateManager;
class KyDbObject;
class KyDbSymbolTable;
class KyDbUndoController;

class KYPLATFORM_API KyDbDatabase : public KyRxObject {
public:
    KYRX_DECLARE_MEMBERS(KyDbDatabase);

    // A new drawing with the standard content, or (false) an empty database
    // with its tables and its named objects dictionary only.
    explicit KyDbDatabase(bool buildDefaultDrawing = true);
    ~KyDbDatabase() override;
    KyDbDatabase(const KyDbDatabase&) = delete;
    KyDbDatabase& operator=(const KyDbDatabase&) = delete;

    // ---- Objects and handles

    // Puts an object owned by no container into the database, with `handle`
    // or the next free one. The object is then open for write: close it.
    // eAlreadyInDb, eHandleInUse, eLockViolation (a database that requires
    // the lock, outside one).
    Kyro::ErrorStatus addKyDbObject(KyDbObjectId& id, KyDbObject* object,
                                    KyDbHandle handle = KyDbHandle());
    // The id of the object with `handle`: eKeyNotFound when none has it.
    Kyro::ErrorStatus getKyDbObjectId(KyDbObjectId& id, KyDbHandle handle) const;
    // The next handle the database hands out: above every handle in use.
    KyDbHandle handseed() const { return KyDbHandle(m_handseed); }
    // Gives an object of this database another handle. Only an object whose
    // handle is still provisional (the tables and root dictionary of an empty
    // database) can take one (eNotApplicable otherwise); a handle held by
    // another object answers eHandleInUse, unless that one is provisional too.
    Kyro::ErrorStatus setObjectHandle(KyDbObjectId id, KyDbHandle handle);
    // Objects in the database, erased ones included.
    int objectCount() const { return static_cast<int>(m_objects.size()); }

    // ---- Tables and dictionaries

    KyDbObjectId blockTableId() const { return m_blockTable; }
    KyDbObjectId layerTableId() const { return m_layerTable; }
    KyDbObjectId linetypeTableId() const { return m_linetypeTable; }
    KyDbObjectId textStyleTableId() const { return m_textStyleTable; }
    KyDbObjectId dimStyleTableId() const { return m_dimStyleTable; }
    KyDbObjectId viewTableId() const { return m_viewTable; }
    KyDbObjectId viewportTableId() const { return m_viewportTable; }
    KyDbObjectId UCSTableId() const { return m_ucsTable; }
    KyDbObjectId namedObjectsDictionaryId() const { return m_namedObjects; }

    // Entries of the named objects dictionary; null when the drawing has no
    // such entry.
    KyDbObjectId layoutDictionaryId() const;
    KyDbObjectId materialDictionaryId() const;
    KyDbObjectId plotSettingsDictionaryId() const;
    KyDbObjectId plotStyleNameDictionaryId() const;
    KyDbObjectId scaleListDictionaryId() const;
    KyDbObjectId visualStyleDictionaryId() const;
    KyDbObjectId tableStyleDictionaryId() const;
    KyDbObjectId mleaderStyleDictionaryId() const;
    KyDbObjectId detailViewStyleDictionaryId() const;
    KyDbObjectId sectionViewStyleDictionaryId() const;
    KyDbObjectId renderSettingsDictionaryId() const;
    KyDbObjectId variableDictionaryId() const;
    // The entry `key` of the named objects dictionary, null if none.
    KyDbObjectId namedObjectsEntryId(const wchar_t* key) const;

    Kyro::ErrorStatus getNamedObjectsDictionary(KyDbDictionary*& dictionary, KyDb::OpenMode mode);
    // Opens a table by its id; the caller closes it.
    Kyro::ErrorStatus getSymbolTable(KyDbSymbolTable*& table, KyDbObjectId tableId,
                                     KyDb::OpenMode mode);
    // The layer state manager of the drawing (KyDbLayerStateManager.h): one
    // for the life of the database.
    KyDbLayerStateManager* getLayerStateManager() const { return m_layerStates; }

    // ---- Header

    // Current items. Each setter refuses the null id (eNullObjectId), an id of
    // another database (eWrongDatabase), an erased record (eWasErased) and an
    // id that isn't in the variable's table or dictionary
    // (eNotThatKindOfClass); an equal value changes nothing.
    KyDbObjectId clayer() const;
    Kyro::ErrorStatus setClayer(KyDbObjectId id);
    KyDbObjectId celtype() const;
    Kyro::ErrorStatus setCeltype(KyDbObjectId id);
    KyDbObjectId textstyle() const;
    Kyro::ErrorStatus setTextstyle(KyDbObjectId id);
    KyDbObjectId dimstyle() const;
    Kyro::ErrorStatus setDimstyle(KyDbObjectId id);
    KyDbObjectId tablestyle() const;
    Kyro::ErrorStatus setTablestyle(KyDbObjectId id);
    KyDbObjectId mleaderstyle() const;
    Kyro::ErrorStatus setMLeaderstyle(KyDbObjectId id);
    KyDbObjectId cmaterial() const;
    Kyro::ErrorStatus setCmaterial(KyDbObjectId id);
    KyDbObjectId detailViewStyle() const;
    Kyro::ErrorStatus setDetailViewStyle(KyDbObjectId id);
    KyDbObjectId sectionViewStyle() const;
    Kyro::ErrorStatus setSectionViewStyle(KyDbObjectId id);
    // The base of orthographic UCSs: a UCS record, or null for the world.
    KyDbObjectId ucsBase() const;
    Kyro::ErrorStatus setUcsBase(KyDbObjectId id);

    KyCmColor cecolor() const;
    Kyro::ErrorStatus setCecolor(const KyCmColor& color);
    // Refuses the error value (eInvalidInput).
    KyCmTransparency cetransparency() const;
    Kyro::ErrorStatus setCetransparency(const KyCmTransparency& transparency);
    // Refuses a weight outside the standard list and its three sentinels.
    KyDb::LineWeight celweight() const;
    Kyro::ErrorStatus setCelweight(KyDb::LineWeight weight);
    KyDb::ShadowFlags cshadow() const;
    Kyro::ErrorStatus setCshadow(KyDb::ShadowFlags flags);
    // True when model space is shown in one tiled viewport.
    bool tilemode() const;
    Kyro::ErrorStatus setTilemode(bool tilemode);
    // True for colour-dependent plot styles, false for named plot styles.
    bool plotStyleMode() const;
    Kyro::ErrorStatus setPlotStyleMode(bool colorDependent);

    // Any drawing variable by name, in any case. A name never set answers
    // eKeyNotFound. Writes tell headerSysVarWillChange and
    // headerSysVarChanged, are recorded for undo, need the lock when the
    // database requires it, and change nothing for an equal value. The typed
    // variables above take only their own type (eInvalidInput) and are
    // checked as their setters check them.
    Kyro::ErrorStatus getHeaderVar(const wchar_t* name, KyRxValue& value) const;
    Kyro::ErrorStatus setHeaderVar(const wchar_t* name, const KyRxValue& value);
    KyStringArray headerVarNames() const;
    // True when a typed header variable holds `id` (the current layer,
    // linetype, text style ...): such a record can't be erased.
    bool isCurrentItem(KyDbObjectId id) const;

    // ---- Undo, reactors, locks

    KyDbUndoController* undoController() const { return m_undo; }

    // A reactor stands at most once; removing an absent one answers
    // eInvalidInput.
    Kyro::ErrorStatus addReactor(KyDbDatabaseReactor* reactor);
    Kyro::ErrorStatus removeReactor(KyDbDatabaseReactor* reactor);

    void setLockRequired(bool required) { m_lockRequired = required; }
    bool isLockRequired() const { return m_lockRequired; }
    // True inside a KyAxDocLock of this database.
    bool isWriteLocked() const { return m_lockCount > 0; }
    // eOk when a write may happen now, eLockViolation otherwise.
    Kyro::ErrorStatus checkWriteLock() const;

    // A number no other database of the process has had (see
    // kydbIsLiveDatabase).
    std::uint64_t serial() const { return m_serial; }

private:
    friend class KyDbObjectAccess;
    friend class KyDbUndoController;
    friend class KyAxDocLock;

    Kyro::ErrorStatus setIdVariable(const wchar_t* name, KyDbObjectId id);
    Kyro::ErrorStatus checkVariable(const wchar_t* name, const KyRxValue& value) const;
    // Sets a header value with its notifications and undo step.
    void writeHeaderValue(const wchar_t* name, const KyRxValue& value, bool record);
    // Undo and redo: puts a value back (null: the variable was not set).
    void restoreHeaderValue(const wchar_t* name, const KyRxValue* value);
    KyDbObjectId idVariable(const wchar_t* name) const;
    void makeTablesAndRoot(bool provisional);
    KyDbStub* stubOfHandle(std::uint64_t handle) const;
    // Moves a provisional handle out of the way to the handseed;
    // eHandleInUse when the holder's handle is not provisional.
    Kyro::ErrorStatus moveProvisional(KyDbStub* holder);
    void registerStub(KyDbStub* stub);
    void writeOpenEnded();

    std::vector<KyDbObject*> m_objects;
    std::unordered_map<std::uint64_t, KyDbStub*> m_byHandle;
    std::vector<KyDbStub*> m_provisional;
    std::uint64_t m_handseed = 1;
    KyArray<KyDbDatabaseReactor*> m_reactors;
    KyDbHeader* m_header;
    KyDbUndoController* m_undo;
    KyDbLayerStateManager* m_layerStates;
    KyDbObjectId m_blockTable;
    KyDbObjectId m_layerTable;
    KyDbObjectId m_linetypeTable;
    KyDbObjectId m_textStyleTable;
    KyDbObjectId m_dimStyleTable;
    KyDbObjectId m_viewTable;
    KyDbObjectId m_viewportTable;
    KyDbObjectId m_ucsTable;
    KyDbObjectId m_namedObjects;
    // Serial number of the database, so a lock can tell it from a later
    // database at the same address.
    std::uint64_t m_serial;
    int m_lockCount = 0;
    int m_writeOpenCount = 0;
    bool m_lockRequired = false;
    bool m_destroying = false;
};

// The layout of the space that is current: the layout of *Model_Space when
// tilemode is on, the layout of *Paper_Space otherwise; null without one.
KYPLATFORM_API KyDbObjectId kydbCurrentLayoutId(const KyDbDatabase* database);
// Makes `layoutId` the current layout: the model layout turns tilemode on; a
// paper layout's block takes the name *Paper_Space from the block that had
// it (KyDbBlockTableRecord::takePaperSpaceName), and tilemode goes off. Both
// blocks are written, and the header, as any write: inside the document lock
// where the database requires it. eNullObjectId, eWrongDatabase, eWasErased,
// eNotThatKindOfClass (not a layout), eNotApplicable (a drawing without
// *Paper_Space), or the status of a write.
KYPLATFORM_API Kyro::ErrorStatus kydbSetCurrentLayoutId(KyDbDatabase* database,
                                                        KyDbObjectId layoutId);

// True when `database` is a database that has not been deleted, and its
// serial number is `serial`.
KYPLATFORM_API bool kydbIsLiveDatabase(const KyDbDatabase* database, std::uint64_t serial);
