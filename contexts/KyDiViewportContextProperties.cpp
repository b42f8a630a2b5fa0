#include "contexts/KyDiViewportContextProperties.h"

#include "contexts/KyDiViewportContext.h"
#include "gi/KyGiPhotographicExposureParameters.h"
#include "kydi/KyDiHost.h"
#include "kydi/KyDiViewportService.h"
#include "kydi/KyDiVisualStyleService.h"
#include "manager/host/KyDiHostAccess.h"
#include "rx/KyRxClass.h"

namespace {

using Context = KyDiViewportContext;
using Service = KyDiViewportService;

KyDiVisualStyleService* visualStyles() {
    KyDiHost* host = KyDiHostAccess::host();
    return host != nullptr ? host->visualStyleService() : nullptr;
}

template <int Selector>
Kyro::ErrorStatus getPoint(const Context&, KyGePoint3d& out) {
    Service* viewports = KyDiHostAccess::viewportService();
    if (viewports == nullptr) {
        out = KyGePoint3d::kOrigin;
        return Kyro::eOk;
    }
    return viewports->getViewPoint(out, Selector);
}

template <int Selector>
Kyro::ErrorStatus setPoint(Context&, const KyGePoint3d& point) {
    if (Service* viewports = KyDiHostAccess::viewportService()) {
        viewports->setViewPoint(point, Selector);
    }
    return Kyro::eOk;
}

// Visible or unlocked: the negation of what the service says of the working
// database; false without either.
template <bool (Service::*Question)(KyDbDatabase*)>
Kyro::ErrorStatus getNegated(const Context&, bool& out) {
    Service* viewports = KyDiHostAccess::viewportService();
    KyDbDatabase* database = KyDiHostAccess::workingDatabase();
    out = viewports != nullptr && database != nullptr && !(viewports->*Question)(database);
    return Kyro::eOk;
}

Kyro::ErrorStatus getIsTwoDimensional(const Context&, bool& out) {
    KyDiVisualStyleService* styles = visualStyles();
    out = styles != nullptr && styles->isTwoDimensional();
    return Kyro::eOk;
}

Kyro::ErrorStatus getViewResolution(const Context&, int& out) {
    KyDiVisualStyleService* styles = visualStyles();
    out = styles != nullptr ? styles->getViewResolution() : 0;
    return Kyro::eOk;
}

Kyro::ErrorStatus setViewResolution(Context& context, const int& resolution) {
    KyDiVisualStyleService* styles = visualStyles();
    if (styles == nullptr) {
        return Kyro::eOk;
    }
    styles->setViewResolution(resolution);
    // The resolution lives in no object the context watches: it reports it
    // itself.
    context.noteChangedProperty(L"ViewResolution");
    return Kyro::eOk;
}

Kyro::ErrorStatus getLensLength(const Context&, double& out) {
    Service* viewports = KyDiHostAccess::viewportService();
    out = viewports != nullptr && KyDiHostAccess::currentDocument() != kKyDiNoDocument
              ? viewports->getLensLength()
              : 0.0;
    return Kyro::eOk;
}

Kyro::ErrorStatus setLensLength(Context&, const double& length) {
    // The change reaches the context through the viewport object.
    if (Service* viewports = KyDiHostAccess::viewportService()) {
        viewports->setLensLength(length);
    }
    return Kyro::eOk;
}

Kyro::ErrorStatus getToneOperatorType(const Context& context, int& out) {
    out = context.toneOperatorType();
    return Kyro::eOk;
}

Kyro::ErrorStatus setToneOperatorType(Context& context, const int& type) {
    context.setToneOperatorType(type);
    return Kyro::eOk;
}

// One member of the tone parameters, read from and written back into the
// whole value of the tone property.
class ToneMemberProperty : public KyRxProperty {
public:
    using Getter = double (KyGiToneOperatorParameters::*)() const;
    using Setter = bool (KyGiToneOperatorParameters::*)(double);

    ToneMemberProperty(const KyRxProperty& whole, const wchar_t* name, Getter getter, Setter setter)
        : KyRxProperty(name, KyRxValueType::Desc<double>::value(), &whole),
          m_whole(whole),
          m_getter(getter),
          m_setter(setter) {}

protected:
    static KyGiToneOperatorParameters* parameters(KyRxValue& value) {
        if (auto* exposure = valueCast<KyGiPhotographicExposureParameters>(&value)) {
            return exposure;
        }
        return valueCast<KyGiToneOperatorParameters>(&value);
    }

    Kyro::ErrorStatus subGetValue(const KyRxObject* object, KyRxValue& value) const override {
        KyRxValue whole;
        const Kyro::ErrorStatus status = m_whole.getValue(object, whole);
        if (status != Kyro::eOk) {
            return status;
        }
        const KyGiToneOperatorParameters* tone = parameters(whole);
        if (tone == nullptr) {
            return Kyro::eNotApplicable;
        }
        value = (tone->*m_getter)();
        return Kyro::eOk;
    }

    Kyro::ErrorStatus subSetValue(KyRxObject* object, const KyRxValue& value) const override {
        const double* number = valueCast<double>(&value);
        if (number == nullptr) {
            return Kyro::eInvalidInput;
        }
        KyRxValue whole;
        const Kyro::ErrorStatus status = m_whole.getValue(object, whole);
        if (status != Kyro::eOk) {
            return status;
        }
        KyGiToneOperatorParameters* tone = parameters(whole);
        if (tone == nullptr) {
            return Kyro::eNotApplicable;
        }
        if (!(tone->*m_setter)(*number)) {
            return Kyro::eInvalidInput;
        }
        return m_whole.setValue(object, whole);
    }

private:
    const KyRxProperty& m_whole;
    Getter m_getter;
    Setter m_setter;
};

}  // namespace

KyDiViewportContextCameraLocationProperty::KyDiViewportContextCameraLocationProperty(
    const KyRxObject* owner)
    : ContextProperty(L"CameraLocation", owner, &getPoint<Service::kCameraLocation>,
                      &setPoint<Service::kCameraLocation>) {}

KyDiViewportContextViewCenterProperty::KyDiViewportContextViewCenterProperty(
    const KyRxObject* owner)
    : ContextProperty(L"ViewCenter", owner, &getPoint<Service::kViewCenter>,
                      &setPoint<Service::kViewCenter>) {}

KyDiViewportContextIsNavBoxVisibleProperty::KyDiViewportContextIsNavBoxVisibleProperty(
    const KyRxObject* owner)
    : ContextProperty(L"IsNavBoxVisible", owner, &getNegated<&Service::isNavBoxOff>) {}

KyDiViewportContextIsViewPortUnLockedProperty::KyDiViewportContextIsViewPortUnLockedProperty(
    const KyRxObject* owner)
    : ContextProperty(L"IsViewPortUnLocked", owner, &getNegated<&Service::isViewLocked>) {}

KyDiViewportContextIsVS2dTypeProperty::KyDiViewportContextIsVS2dTypeProperty(
    const KyRxObject* owner)
    : ContextProperty(L"IsVS2dType", owner, &getIsTwoDimensional) {}

KyDiViewportContextViewResolutionProperty::KyDiViewportContextViewResolutionProperty(
    const KyRxObject* owner)
    : ContextProperty(L"ViewResolution", owner, &getViewResolution, &setViewResolution) {}

KyDiViewportContextLensLengthProperty::KyDiViewportContextLensLengthProperty(
    const KyRxObject* owner)
    : ContextProperty(L"LensLength", owner, &getLensLength, &setLensLength) {}

KyDiViewportContextToneOperatorTypeProperty::KyDiViewportContextToneOperatorTypeProperty(
    const KyRxObject* owner)
    : ContextProperty(L"ToneOperatorType", owner, &getToneOperatorType, &setToneOperatorType) {}

KyDiViewportContextToneOperatorParametersOverridePropertyBase::
    KyDiViewportContextToneOperatorParametersOverridePropertyBase(const KyRxObject* owner)
    : KyRxProperty(L"ToneOperatorParameters",
                   KyRxValueType::Desc<KyGiToneOperatorParameters>::value(), owner) {}

Kyro::ErrorStatus KyDiViewportContextToneOperatorParametersOverridePropertyBase::subChildren(
    KyRxMemberArray& children) const {
    using Tone = KyGiToneOperatorParameters;
    children.append(
        new ToneMemberProperty(*this, L"Brightness", &Tone::brightness, &Tone::setBrightness));
    children.append(
        new ToneMemberProperty(*this, L"Contrast", &Tone::contrast, &Tone::setContrast));
    children.append(
        new ToneMemberProperty(*this, L"MidTones", &Tone::midTones, &Tone::setMidTones));
    return Kyro::eOk;
}

KyDiViewportContextToneOperatorParametersProperty::
    KyDiViewportContextToneOperatorParametersProperty(const KyRxObject* owner)
    : KyDiViewportContextToneOperatorParametersOverridePropertyBase(owner) {}

Kyro::ErrorStatus KyDiViewportContextToneOperatorParametersProperty::subGetValue(
    const KyRxObject* object, KyRxValue& value) const {
    const auto* context = dynamic_cast<const Context*>(object);
    if (context == nullptr) {
        return Kyro::eNotThatKindOfClass;
    }
    // Only a photographic tone operator has these parameters.
    if (context->toneOperatorType() > 1) {
        return Kyro::eOk;
    }
    KyGiPhotographicExposureParameters parameters;
    Kyro::ErrorStatus status = Kyro::eOk;
    Service* viewports = KyDiHostAccess::viewportService();
    if (KyDiHostAccess::currentDocument() == kKyDiNoDocument) {
        status = Kyro::eNoCurrentDocument;
    } else if (viewports == nullptr) {
        status = Kyro::eNotApplicable;
    } else {
        status = viewports->getExposureParameters(parameters);
    }
    value = KyRxValue(parameters);
    return status;
}

Kyro::ErrorStatus KyDiViewportContextToneOperatorParametersProperty::subSetValue(
    KyRxObject* object, const KyRxValue& value) const {
    if (dynamic_cast<Context*>(object) == nullptr) {
        return Kyro::eNotThatKindOfClass;
    }
    const auto* parameters = valueCast<KyGiPhotographicExposureParameters>(&value);
    if (parameters == nullptr) {
        return Kyro::eInvalidInput;
    }
    Service* viewports = KyDiHostAccess::viewportService();
    if (viewports == nullptr) {
        return Kyro::eNotApplicable;
    }
    return viewports->setExposureParameters(*parameters);
}

void KyDiViewportContext::buildMembers(KyRxMemberCollectionBuilder& builder, void* /*userData*/) {
    const KyRxObject* owner = builder.owner();
    builder.add(new KyDiViewportContextCameraLocationProperty(owner));
    builder.add(new KyDiViewportContextViewCenterProperty(owner));
    builder.add(new KyDiViewportContextIsNavBoxVisibleProperty(owner));
    builder.add(new KyDiViewportContextIsViewPortUnLockedProperty(owner));
    builder.add(new KyDiViewportContextIsVS2dTypeProperty(owner));
    builder.add(new KyDiViewportContextViewResolutionProperty(owner));
    builder.add(new KyDiViewportContextLensLengthProperty(owner));
    builder.add(new KyDiViewportContextToneOperatorParametersProperty(owner));
    builder.add(new KyDiViewportContextToneOperatorTypeProperty(owner));
}
