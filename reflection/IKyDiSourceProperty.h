// Not part of the interface: what every wrapper of a host property offers,
// the host member it stands for.
#pragma once

class KyRxMember;

class IKyDiSourceProperty {
public:
    // The wrapped host member; null for a property of the layer's own.
    virtual const KyRxMember* sourceProperty() const = 0;

protected:
    ~IKyDiSourceProperty() = default;
};
