// Overrides of the layers of an external reference: -LAYER notes each
// property it changes on a layer of an attached reference, and nothing on the
// drawing's own layers; undo and redo take a change and its note together; a
// save writes the notes and a reopen reads them; a client finds them through
// the reflected HasXrefOverrides.
#include <fstream>

#include "KyRefDocument.h"
#include "LayerTestSupport.h"
#include "base/KyRxResourceInstance.h"
#include "db/KyDbLayerTableRecord.h"
#include "db/KyDbObjectPointer.h"
#include "io/KyRefJson.h"
#include "rx/KyRxMemberQueryEngine.h"
#include "rx/KyRxProperty.h"

namespace refhost {
namespace {

const char* const kSite = R"({
 "format": "kydrawing",
 "version": 1,
 "layers": [
  {"handle": "10", "name": "0"},
  {"handle": "20", "name": "Walls", "color": 1},
  {"handle": "21", "name": "Trees", "color": 3, "off": true}
 ]
})";

class XrefOverrideTest : public LayerFixture {
protected:
    XrefOverrideTest() {
        openDrawing(kLayerDrawing);
        run(KyString::fromUtf8("-XATTACH\n" + writeFile("site.kyd", kSite).string() + "\n"));
        takeLog();
    }

    // The overridden properties of the layer, joined by ",".
    std::string overridesOf(const wchar_t* name) const {
        KyDbObjectPointer<KyDbLayerTableRecord> record(layer(name), KyDb::kForRead);
        std::string joined;
        for (const KyString& property : record->xrefOverrides()) {
            joined += (joined.empty() ? "" : ",") + property.utf8();
        }
        return joined;
    }

    // The reflected HasXrefOverrides of the layer: "true", "false", or why
    // it can't be read.
    std::string reflected(const wchar_t* name) const {
        KyDbObjectPointer<KyDbLayerTableRecord> record(layer(name), KyDb::kForRead);
        const KyRxProperty* property = hasOverridesProperty(record.object());
        KyRxValue value;
        if (property == nullptr || property->getValue(record.object(), value) != Kyro::eOk) {
            return "unreadable";
        }
        const bool* flag = valueCast<bool>(&value);
        return flag == nullptr ? "not a flag" : (*flag ? "true" : "false");
    }

    static const KyRxProperty* hasOverridesProperty(const KyRxObject* object) {
        KyRxMemberQueryEngine* engine = KyRxMemberQueryEngine::theEngine();
        return kyrxCast<KyRxProperty>(
            engine->find(object, L"HasXrefOverrides", engine->promotingContext()));
    }

    KyRefJson save(const char* name) {
        const std::filesystem::path saved = folder / name;
        KyString error;
        EXPECT_TRUE(host->documents().saveDocument(host->documents().current(),
                                                   saved.wstring().c_str(), error))
            << error.utf8();
        std::ifstream file(saved);
        return KyRefJson::parse(file);
    }
};

// The layer named `name` in the JSON of a drawing.
KyRefJson layerIn(const KyRefJson& drawing, const std::string& name) {
    for (const KyRefJson& layer : drawing["layers"]) {
        if (layer["name"] == name) {
            return layer;
        }
    }
    return KyRefJson();
}

TEST_F(XrefOverrideTest, LayerNotesWhatItChangesOnLayersOfTheReferenceOnly) {
    EXPECT_EQ(overridesOf(L"site|Walls"), "") << "an attach brings the layers as they are";
    EXPECT_EQ(reflected(L"site|Walls"), "false");

    run(L"-LAYER\nColor\n5\nsite|Walls,Walls\nLOck\nsite|Trees\nON\nsite|Trees\n"
        L"Description\nOld wall\nsite|Walls\nTRansparency\n40\nsite|Walls\n\n");
    EXPECT_EQ(state(L"site|Walls").substr(0, 7), "color=5");
    EXPECT_EQ(overridesOf(L"site|Walls"), "Color,Description,Transparency");
    EXPECT_EQ(overridesOf(L"site|Trees"), "IsLocked,IsOff");
    EXPECT_EQ(overridesOf(L"Walls"), "") << "a layer of the drawing itself has none";
    EXPECT_EQ(reflected(L"site|Walls"), "true");
    EXPECT_EQ(reflected(L"Walls"), "false");

    run(L"-LAYER\nColor\n5\nsite|Walls\nUnlock\nsite|Trees\n\n");
    EXPECT_EQ(overridesOf(L"site|Walls"), "Color,Description,Transparency")
        << "a property is noted once";
    EXPECT_EQ(overridesOf(L"site|Trees"), "IsLocked,IsOff")
        << "a property set back to the reference's value stays overridden";
}

TEST_F(XrefOverrideTest, UndoAndRedoTakeAChangeAndItsOverrideTogether) {
    run(L"-LAYER\nColor\n5\nsite|Walls\n\n");
    run(L"-LAYER\nON\nsite|Trees\n\n");
    ASSERT_EQ(overridesOf(L"site|Trees"), "IsOff");

    run(L"U\n");
    EXPECT_NE(state(L"site|Trees").find("off=1"), std::string::npos);
    EXPECT_EQ(overridesOf(L"site|Trees"), "");
    EXPECT_EQ(overridesOf(L"site|Walls"), "Color");
    run(L"U\n");
    EXPECT_EQ(state(L"site|Walls").substr(0, 7), "color=1");
    EXPECT_EQ(overridesOf(L"site|Walls"), "");
    EXPECT_EQ(reflected(L"site|Walls"), "false");

    run(L"REDO\n");
    EXPECT_EQ(state(L"site|Walls").substr(0, 7), "color=5");
    EXPECT_EQ(overridesOf(L"site|Walls"), "Color");
}

TEST_F(XrefOverrideTest, ASaveWritesTheOverridesAndAReopenReadsThem) {
    run(L"-LAYER\nLOck\nsite|Walls\nColor\n4\nsite|Walls\nColor\n2\nWalls\n\n");
    const KyRefJson saved = save("saved.kyd");
    EXPECT_EQ(layerIn(saved, "site|Walls").value("xrefOverrides", KyRefJson()),
              KyRefJson::array({"IsLocked", "Color"}));
    EXPECT_FALSE(layerIn(saved, "Walls").contains("xrefOverrides"))
        << "left out as the file left it out";

    KyString error;
    ASSERT_NE(host->documents().openDocument((folder / "saved.kyd").wstring().c_str(), error),
              nullptr)
        << error.utf8();
    EXPECT_EQ(overridesOf(L"site|Walls"), "IsLocked,Color");
    EXPECT_EQ(overridesOf(L"site|Trees"), "");
    EXPECT_EQ(save("again.kyd")["layers"], saved["layers"]) << "the round trip loses nothing";
}

TEST_F(XrefOverrideTest, AFileWithOverridesAReaderCantKeepIsRefused) {
    const KyRefJson saved = save("saved.kyd");
    // The reader's error for the saved drawing with `overrides` on the layer
    // `layerName`, with the layer's path in the file written as "LAYER".
    auto refusal = [&](const std::string& layerName, const KyRefJson& overrides) {
        KyRefJson drawing = saved;
        std::string path;
        for (std::size_t i = 0; i < drawing["layers"].size(); ++i) {
            if (drawing["layers"][i]["name"] == layerName) {
                drawing["layers"][i]["xrefOverrides"] = overrides;
                path = "layers[" + std::to_string(i) + "]";
            }
        }
        const std::filesystem::path file = writeFile("broken.kyd", drawing.dump());
        KyString error;
        EXPECT_EQ(host->documents().openDocument(file.wstring().c_str(), error), nullptr);
        // After "Cannot open "FILE": ".
        std::string text = error.utf8();
        text.erase(0, text.find("\": ") + 3);
        if (const std::size_t at = text.find(path); !path.empty() && at != std::string::npos) {
            text.replace(at, path.size(), "LAYER");
        }
        return text;
    };
    EXPECT_EQ(refusal("Walls", KyRefJson::array({"Color"})),
              "LAYER.xrefOverrides: expected no overrides: only a layer of an external reference "
              "(\"XREF|name\", where XREF is a block with \"xref\") has them");
    const std::string notNames =
        "LAYER.xrefOverrides: expected the names of writable layer properties (\"Color\", "
        "\"IsOff\" ...), each once; the drawing refused it as ";
    EXPECT_EQ(refusal("site|Walls", KyRefJson::array({"Colour"})).substr(0, notNames.size()),
              notNames);
    EXPECT_EQ(
        refusal("site|Walls", KyRefJson::array({"Color", "Color"})).substr(0, notNames.size()),
        notNames);
    EXPECT_EQ(refusal("site|Walls", KyRefJson::array({"Color", 3})).substr(0, 29),
              "LAYER.xrefOverrides[1]: expec");
}

TEST_F(XrefOverrideTest, TheReflectedPropertyIsReadOnlyAndNamedInBothLanguages) {
    KyDbObjectPointer<KyDbLayerTableRecord> record(layer(L"site|Walls"), KyDb::kForRead);
    const KyRxProperty* property = hasOverridesProperty(record.object());
    ASSERT_NE(property, nullptr);
    EXPECT_TRUE(property->isReadOnly());
    EXPECT_EQ(property->localName().utf8(), "Has reference overrides");
    KyRxResourceInstance::setLanguage(L"de");
    EXPECT_EQ(property->localName().utf8(), "Hat Referenzüberschreibungen");
    KyRxResourceInstance::setLanguage(L"");
}

}  // namespace
}  // namespace refhost
