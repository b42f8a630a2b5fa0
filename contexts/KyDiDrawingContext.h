// Not part of the interface: the context "DRAWING", the values that a new
// object of the drawing in front would get: its colour, layer, linetype and
// lineweight, the current styles, the visual style settings of the view, the
// layout's plot settings. It stores nothing: each property reads and writes
// the drawing's effective property under the key of its value, and any change
// the effective property reports becomes one change of the context without
// names.
//
// Some properties belong to one space: the visual style settings and the
// coordinate system of the viewport to model space (the settings not while
// the block editor is open), the layout's name, page setup and resolution to
// a layout. Outside their space they can't be read and are not listed.
// "TileMode" is never listed, but can be read and written by name.
#pragma once

#include "kydi/KyDiContextBase.h"

class DrawingEffectivePropertyReactor;
class KyDiImpEffectiveProperty;
class KyRxMemberCollectionBuilder;

class KyDiDrawingContext : public KyDiContextBase {
public:
    static KyRxClass* desc();
    KyRxClass* isA() const override;

    // The factory of the "DRAWING" row.
    static KyDiContext* create(const wchar_t* name);
    // The class's reflected properties.
    static void buildMembers(KyRxMemberCollectionBuilder& builder, void* userData);

    // Leaves the effective property, which lives on.
    ~KyDiDrawingContext() override;

    KyDiImpEffectiveProperty* effectiveProperty() const { return m_effectiveProperty; }
    // Reports a change without names to the context's reactors, while a
    // drawing is in front.
    void reportChange();

protected:
    explicit KyDiDrawingContext(const wchar_t* name);

    KyRxMemberIterator* subNewMemberIterator() override;
    bool subIsActive() const override;
    short subPriority() const override;

private:
    // Whether the effective property is bound to a document.
    bool isBound() const;

    KyDiImpEffectiveProperty* m_effectiveProperty;
    DrawingEffectivePropertyReactor* m_effectivePropertyReactor;
};
