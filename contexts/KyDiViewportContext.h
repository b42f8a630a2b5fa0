// Not part of the interface: the context "VIEWPORT", the state of the view
// the user works in: where the camera stands, the view centre, the lens, the
// lock and the photographic tone settings.
//
// It watches the object that holds the current view (the host names it) and
// the unit variables that change how its points read. What it reports
// carries a mask as change data, which the layer collection and the sun
// context read:
//   kViewInvalidated (1)  the host regenerated the view;
//   kViewportChanged (2)  the viewport object changed, or the context moved
//                         to another one.
// A move to another document is one report without change data.
#pragma once

#include <map>
#include <vector>

#include "base/KyArray.h"
#include "base/KyString.h"
#include "contexts/DataValueReactor.h"
#include "db/KyDbObjectId.h"
#include "kydi/KyDiContextBase.h"
#include "kydi/KyDiTypes.h"
#include "manager/KyDiObjectModifiedReactor.h"

class KyDbObject;
class KyRxMemberCollectionBuilder;

class KyDiViewportContext : public KyDiContextBase {
public:
    static constexpr unsigned kViewInvalidated = 0x1;
    static constexpr unsigned kViewportChanged = 0x2;

    static KyRxClass* desc();
    KyRxClass* isA() const override;

    // The factory of the "VIEWPORT" row.
    static KyDiContext* create(const wchar_t* name);
    // The class's reflected properties.
    static void buildMembers(KyRxMemberCollectionBuilder& builder, void* userData);

    ~KyDiViewportContext() override;

    int subRefresh() override;
    void subInvalidate() override;
    void subDatabaseToBeDestroyed(void* database) override;

    // Reactor entries.
    void objectClosed(KyDbObjectId id);
    void objectGoodbye(const KyDbObject* object);
    void sysVarChanged(const wchar_t* name);

    // State read and written by the properties.
    int toneOperatorType() const { return m_toneOperatorType; }
    void setToneOperatorType(int type) { m_toneOperatorType = type; }
    // Queues a report of `property` with the binding mask; a pass in which
    // the viewport object changed as well reports without names.
    void noteChangedProperty(const wchar_t* property);

protected:
    explicit KyDiViewportContext(const wchar_t* name);

    KyRxMemberIterator* subNewMemberIterator() override;
    bool subIsActive() const override;
    short subPriority() const override;

private:
    using SysVarReactor = DataValueReactor<KyDiViewportContext>;

    // Follows the current document and its current viewport object; answers
    // kDocumentMoved when the document changed.
    static constexpr int kDocumentMoved = 16;
    int updateBinding();
    // Lets go of the watched object; `leaving` is that object when it is
    // leaving memory.
    void unbind(const KyDbObject* leaving);

    // What changed since the last report: unnamed (the view, the viewport
    // object, the binding), and what the queued names carry.
    unsigned m_changeMask = 0;
    unsigned m_namedMask = 0;
    unsigned m_reportedMask = 0;
    KyDbObjectId m_viewportId;
    KyDiDocument m_document = kKyDiNoDocument;
    KyDiObjectModifiedReactor<KyDiViewportContext>* m_objectReactor;
    KyArray<SysVarReactor*> m_sysVarReactors;
    std::vector<KyString> m_changedProperties;
    // The unit variables, by name, with the properties each changes.
    std::map<KyString, const wchar_t* const*, KyStringLess> m_sysVarRows;
    int m_toneOperatorType = 0;
};
