// Not part of the interface: the layer commands by which a layer item writes
// "IsOff", "IsFrozen", "IsLocked" and "Color". Each builds the text a user
// would type and queues it on the host's command line:
//   "'_.-LAYER\n_OFF\n=Walls\n\n"
// The leading "'" lets the command run inside another one, "_" and "." pick
// the global, built-in command, and "=" makes the host take the name as it
// stands, without reading patterns in it.
//
// A handler answers false when it can't send (no current document, no
// working database, a layer of another drawing than the working one, no
// editor or layer service, no name, a value it does not take): the caller
// then writes the record itself. It answers true when it
// sent the command, or settled the write without one (the user kept the
// current layer on, or the current layer can't be frozen).
#pragma once

class KyDiDbLayerItem;
class KyRxValue;

class LayerCommands {
public:
    using Handler = bool (*)(KyDiDbLayerItem* item, const KyRxValue& value);

    // The handler of a property of a layer, null for a property without one.
    static Handler handlerFor(const wchar_t* propertyName);

    static bool setIsOff(KyDiDbLayerItem* item, const KyRxValue& value);
    static bool setIsFrozen(KyDiDbLayerItem* item, const KyRxValue& value);
    static bool setIsLocked(KyDiDbLayerItem* item, const KyRxValue& value);
    static bool setColor(KyDiDbLayerItem* item, const KyRxValue& value);
};
