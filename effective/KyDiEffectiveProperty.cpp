#include "kydi/KyDiEffectiveProperty.h"

#include "effective/EffectiveKeys.h"
#include "effective/KyDiImpEffectiveProperty.h"

KyDiEffectiveProperty::KyDiEffectiveProperty(KyDiImpEffectiveProperty* imp) : m_imp(imp) {}

KyDiEffectiveProperty::~KyDiEffectiveProperty() = default;

Kyro::ErrorStatus KyDiEffectiveProperty::getLayer(KyDiDynamicObject*& item) {
    return m_imp->getItem(EffectiveKeys::kLayer, item);
}

Kyro::ErrorStatus KyDiEffectiveProperty::setLayer(KyDiDynamicObject* item) {
    return m_imp->setItem(EffectiveKeys::kLayer, item);
}

Kyro::ErrorStatus KyDiEffectiveProperty::getDimensionStyle(KyDiDynamicObject*& item) {
    return m_imp->getItem(EffectiveKeys::kDimStyle, item);
}

Kyro::ErrorStatus KyDiEffectiveProperty::setDimensionStyle(KyDiDynamicObject* item) {
    return m_imp->setItem(EffectiveKeys::kDimStyle, item);
}

Kyro::ErrorStatus KyDiEffectiveProperty::getTextStyle(KyDiDynamicObject*& item) {
    return m_imp->getItem(EffectiveKeys::kTextStyle, item);
}

Kyro::ErrorStatus KyDiEffectiveProperty::setTextStyle(KyDiDynamicObject* item) {
    return m_imp->setItem(EffectiveKeys::kTextStyle, item);
}

Kyro::ErrorStatus KyDiEffectiveProperty::getLinetype(KyDiDynamicObject*& item) {
    return m_imp->getItem(EffectiveKeys::kLinetype, item);
}

Kyro::ErrorStatus KyDiEffectiveProperty::setLinetype(KyDiDynamicObject* item) {
    return m_imp->setItem(EffectiveKeys::kLinetype, item);
}

Kyro::ErrorStatus KyDiEffectiveProperty::getMLeaderStyle(KyDiDynamicObject*& item) {
    return m_imp->getItem(EffectiveKeys::kMLeaderStyle, item);
}

Kyro::ErrorStatus KyDiEffectiveProperty::setMLeaderStyle(KyDiDynamicObject* item) {
    return m_imp->setItem(EffectiveKeys::kMLeaderStyle, item);
}

Kyro::ErrorStatus KyDiEffectiveProperty::getSectionViewStyle(KyDiDynamicObject*& item) {
    return m_imp->getItem(EffectiveKeys::kSectionViewStyle, item);
}

Kyro::ErrorStatus KyDiEffectiveProperty::setSectionViewStyle(KyDiDynamicObject* item) {
    return m_imp->setItem(EffectiveKeys::kSectionViewStyle, item);
}

Kyro::ErrorStatus KyDiEffectiveProperty::getDetailViewStyle(KyDiDynamicObject*& item) {
    return m_imp->getItem(EffectiveKeys::kDetailViewStyle, item);
}

Kyro::ErrorStatus KyDiEffectiveProperty::setDetailViewStyle(KyDiDynamicObject* item) {
    return m_imp->setItem(EffectiveKeys::kDetailViewStyle, item);
}

Kyro::ErrorStatus KyDiEffectiveProperty::getTableStyle(KyDiDynamicObject*& item) {
    return m_imp->getItem(EffectiveKeys::kTableStyle, item);
}

Kyro::ErrorStatus KyDiEffectiveProperty::setTableStyle(KyDiDynamicObject* item) {
    return m_imp->setItem(EffectiveKeys::kTableStyle, item);
}

Kyro::ErrorStatus KyDiEffectiveProperty::getMaterial(KyDiDynamicObject*& item) {
    return m_imp->getItem(EffectiveKeys::kMaterial, item);
}

Kyro::ErrorStatus KyDiEffectiveProperty::setMaterial(KyDiDynamicObject* item) {
    return m_imp->setItem(EffectiveKeys::kMaterial, item);
}

Kyro::ErrorStatus KyDiEffectiveProperty::getLineWeight(KyDiDynamicObject*& item) {
    return m_imp->getItem(EffectiveKeys::kLineweight, item);
}

Kyro::ErrorStatus KyDiEffectiveProperty::setLineWeight(KyDiDynamicObject* item) {
    return m_imp->setItem(EffectiveKeys::kLineweight, item);
}

Kyro::ErrorStatus KyDiEffectiveProperty::getColor(KyDiDynamicObject*& item) {
    return m_imp->getItem(EffectiveKeys::kColor, item);
}

Kyro::ErrorStatus KyDiEffectiveProperty::setColor(KyDiDynamicObject* item) {
    return m_imp->setItem(EffectiveKeys::kColor, item);
}

Kyro::ErrorStatus KyDiEffectiveProperty::getTransparency(KyDiDynamicObject*& item) {
    return m_imp->getItem(EffectiveKeys::kTransparency, item);
}

Kyro::ErrorStatus KyDiEffectiveProperty::setTransparency(KyDiDynamicObject* item) {
    return m_imp->setItem(EffectiveKeys::kTransparency, item);
}

void KyDiEffectiveProperty::addReactor(KyDiEffectivePropertyReactor* reactor) {
    m_imp->addReactor(reactor);
}

void KyDiEffectiveProperty::removeReactor(KyDiEffectivePropertyReactor* reactor) {
    m_imp->removeReactor(reactor);
}
