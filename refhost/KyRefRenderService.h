// KyRefRenderService: render presets. The host offers its own presets (by
// name only: Draft, Low, Medium, High, Presentation) and the presets of the
// drawing's render settings dictionary; one of them is current (Medium to
// begin with). The render settings can be shown only while the host's render
// palette is available, which a test can take away.
#pragma once

#include <vector>

#include "base/KyString.h"
#include "kydi/KyDiRenderService.h"

class KyRefHost;

class KyRefRenderService : public KyDiRenderService {
public:
    explicit KyRefRenderService(KyRefHost& host);

    Kyro::ErrorStatus getCurrentPresetName(KyString& name) override;
    // eKeyNotFound for a name that is neither the host's nor the drawing's.
    Kyro::ErrorStatus setCurrentPreset(const KyString& name) override;
    // The drawing's presets only: the host's own have no ids.
    Kyro::ErrorStatus findPreset(int where, const KyString& name, KyDbObjectId& id) override;
    Kyro::ErrorStatus getPresetIds(KyDbDatabase* database, KyArray<KyDbObjectId>& ids) override;
    Kyro::ErrorStatus getPresetDictionaryId(KyDbDatabase* database, KyDbObjectId& owner) override;
    // The output size of the current preset when it is the drawing's, else
    // the host's setting ("640x480").
    Kyro::ErrorStatus getOutputSize(KyString& text) override;
    // eNotApplicable, with nothing changed, for showing the settings while the
    // render palette is unavailable; hiding them always succeeds.
    Kyro::ErrorStatus setDisplayProperties(bool display) override;

    // ---- State that tests and scripts set and read
    const std::vector<KyString>& hostPresets() const { return m_hostPresets; }
    // Every preset made current, in order, also one made current again: the
    // host takes up the preset's settings each time.
    const std::vector<KyString>& appliedPresets() const { return m_appliedPresets; }
    void setOutputSize(const wchar_t* size) { m_outputSize = size; }
    bool displaysProperties() const { return m_displayProperties; }
    void setPaletteAvailable(bool available) { m_paletteAvailable = available; }

private:
    KyRefHost& m_host;
    std::vector<KyString> m_hostPresets;
    std::vector<KyString> m_appliedPresets;
    KyString m_current;
    KyString m_outputSize;
    bool m_displayProperties = false;
    bool m_paletteAvailable = true;
};
