// Not part of the interface: the reflected properties of the "VIEWPORT"
// context, each read and written through the host's viewport and visual style
// services. A missing service reads as a neutral value with success, except
// for the tone parameters, whose read says which service is missing.
#pragma once

#include "contexts/ContextProperty.h"
#include "ge/KyGePoint3d.h"

class KyDiViewportContext;
class KyRxMemberCollectionBuilder;

class KyDiViewportContextCameraLocationProperty
    : public ContextProperty<KyDiViewportContext, KyGePoint3d> {
public:
    explicit KyDiViewportContextCameraLocationProperty(const KyRxObject* owner);
};

class KyDiViewportContextViewCenterProperty
    : public ContextProperty<KyDiViewportContext, KyGePoint3d> {
public:
    explicit KyDiViewportContextViewCenterProperty(const KyRxObject* owner);
};

class KyDiViewportContextIsNavBoxVisibleProperty
    : public ContextProperty<KyDiViewportContext, bool> {
public:
    explicit KyDiViewportContextIsNavBoxVisibleProperty(const KyRxObject* owner);
};

class KyDiViewportContextIsViewPortUnLockedProperty
    : public ContextProperty<KyDiViewportContext, bool> {
public:
    explicit KyDiViewportContextIsViewPortUnLockedProperty(const KyRxObject* owner);
};

class KyDiViewportContextIsVS2dTypeProperty : public ContextProperty<KyDiViewportContext, bool> {
public:
    explicit KyDiViewportContextIsVS2dTypeProperty(const KyRxObject* owner);
};

class KyDiViewportContextViewResolutionProperty : public ContextProperty<KyDiViewportContext, int> {
public:
    explicit KyDiViewportContextViewResolutionProperty(const KyRxObject* owner);
};

class KyDiViewportContextLensLengthProperty : public ContextProperty<KyDiViewportContext, double> {
public:
    explicit KyDiViewportContextLensLengthProperty(const KyRxObject* owner);
};

// The tone parameters show three of their members as sub-properties.
class KyDiViewportContextToneOperatorParametersOverridePropertyBase : public KyRxProperty {
protected:
    explicit KyDiViewportContextToneOperatorParametersOverridePropertyBase(const KyRxObject* owner);
    Kyro::ErrorStatus subChildren(KyRxMemberArray& children) const override;
};

// Reads the photographic exposure of the current view while the tone
// operator is photographic (type 0 or 1); for another type the value is left
// as given.
class KyDiViewportContextToneOperatorParametersProperty
    : public KyDiViewportContextToneOperatorParametersOverridePropertyBase {
public:
    explicit KyDiViewportContextToneOperatorParametersProperty(const KyRxObject* owner);

protected:
    Kyro::ErrorStatus subGetValue(const KyRxObject* object, KyRxValue& value) const override;
    Kyro::ErrorStatus subSetValue(KyRxObject* object, const KyRxValue& value) const override;
};

class KyDiViewportContextToneOperatorTypeProperty
    : public ContextProperty<KyDiViewportContext, int> {
public:
    explicit KyDiViewportContextToneOperatorTypeProperty(const KyRxObject* owner);
};
