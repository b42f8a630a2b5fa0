#include "db/KyDbLayerState.h"

#include "db/KyDbClassSupport.h"
#include "db/KyDbRecordReference.h"
#include "db/KyDbStandardContent.h"
#include "db/KyDbStateFiler.h"

namespace {

using State = KyDbLayerState;

const KyDbPropertyRow kLayerStateRows[] = {
    {L"Name", kydbiReadOnly<KyString>(&kydbiGetEntryName), KyDbCategory::kGeneral, 0},
    {L"Description", kydbiAccess<&State::description, &State::setDescription>(),
     KyDbCategory::kGeneral, 1},
    {L"Mask", kydbiAccess<&State::mask>(), KyDbCategory::kGeneral, 2},
};

constexpr int kHiddenBit = 0x8000;
constexpr int kSignBit = static_cast<int>(0x80000000u);

Kyro::ErrorStatus checkLayer(const State::Layer& layer) {
    const bool validColor = layer.color.isByACI() || layer.color.isByColor();
    const bool validWeight = KyDbRecordReference::isStandardWeight(layer.lineWeight) &&
                             layer.lineWeight != KyDb::kLnWtByLayer &&
                             layer.lineWeight != KyDb::kLnWtByBlock;
    if (layer.name.isEmpty() || !validColor || !validWeight || !layer.transparency.isByAlpha()) {
        return Kyro::eInvalidInput;
    }
    return Kyro::eOk;
}

void writeLayer(KyDbStateFiler& filer, const State::Layer& layer) {
    filer.writeString(layer.name);
    filer.write(layer.off);
    filer.write(layer.frozen);
    filer.write(layer.locked);
    filer.write(layer.plottable);
    filer.write(layer.color);
    filer.writeString(layer.linetype);
    filer.write(layer.lineWeight);
    filer.write(layer.transparency);
    filer.writeString(layer.plotStyle);
}

void readLayer(KyDbStateFiler& filer, State::Layer& layer) {
    filer.read(layer.name);
    filer.read(layer.off);
    filer.read(layer.frozen);
    filer.read(layer.locked);
    filer.read(layer.plottable);
    filer.read(layer.color);
    filer.read(layer.linetype);
    filer.read(layer.lineWeight);
    filer.read(layer.transparency);
    filer.read(layer.plotStyle);
}

}  // namespace

KYDB_DEFINE_CLASS(KyDbLayerState, KyDbObject, kLayerStateRows)

KyDbLayerState::Layer::Layer()
    : linetype(KyDbStandardContent::kContinuous),
      transparency(255),
      plotStyle(KyDbStandardContent::kNormalPlotStyle) {
    color.setColorIndex(KyCmColor::kACIWhite);
}

bool KyDbLayerState::Layer::operator==(const Layer& other) const {
    return name == other.name && off == other.off && frozen == other.frozen &&
           locked == other.locked && plottable == other.plottable && color == other.color &&
           linetype == other.linetype && lineWeight == other.lineWeight &&
           transparency == other.transparency && plotStyle == other.plotStyle;
}

KyDbLayerState::KyDbLayerState() = default;

KyDbLayerState::~KyDbLayerState() = default;

int KyDbLayerState::normalizedMask(int mask) {
    return (mask & kHiddenBit) != 0 ? (mask | kSignBit) : (mask & ~kSignBit);
}

Kyro::ErrorStatus KyDbLayerState::setDescription(const wchar_t* description) {
    return setMember(m_description, KyString(description));
}

Kyro::ErrorStatus KyDbLayerState::setMask(int mask) {
    return setMember(m_mask, normalizedMask(mask));
}

Kyro::ErrorStatus KyDbLayerState::setLayers(const std::vector<Layer>& layers) {
    if (const Kyro::ErrorStatus status = checkWritable(); status != Kyro::eOk) {
        return status;
    }
    for (std::size_t i = 0; i < layers.size(); ++i) {
        if (const Kyro::ErrorStatus status = checkLayer(layers[i]); status != Kyro::eOk) {
            return status;
        }
        for (std::size_t j = 0; j < i; ++j) {
            if (layers[j].name.compareNoCase(layers[i].name) == 0) {
                return Kyro::eDuplicateKey;
            }
        }
    }
    return setMember(m_layers, layers);
}

const KyDbLayerState::Layer* KyDbLayerState::findLayer(const wchar_t* name) const {
    for (const Layer& layer : m_layers) {
        if (layer.name.compareNoCase(name) == 0) {
            return &layer;
        }
    }
    return nullptr;
}

Kyro::ErrorStatus KyDbLayerState::noteRestored() {
    if (const Kyro::ErrorStatus status = checkWritable(); status != Kyro::eOk) {
        return status;
    }
    return assertWriteEnabled();
}

void KyDbLayerState::subSaveState(KyDbStateFiler& filer) const {
    KyDbObject::subSaveState(filer);
    filer.writeString(m_description);
    filer.write(m_mask);
    filer.write(static_cast<int>(m_layers.size()));
    for (const Layer& layer : m_layers) {
        writeLayer(filer, layer);
    }
}

Kyro::ErrorStatus KyDbLayerState::subRestoreState(KyDbStateFiler& filer) {
    if (const Kyro::ErrorStatus status = KyDbObject::subRestoreState(filer); status != Kyro::eOk) {
        return status;
    }
    filer.read(m_description);
    filer.read(m_mask);
    int count = 0;
    filer.read(count);
    m_layers.assign(static_cast<std::size_t>(count > 0 ? count : 0), Layer());
    for (Layer& layer : m_layers) {
        readLayer(filer, layer);
    }
    return filer.status();
}
