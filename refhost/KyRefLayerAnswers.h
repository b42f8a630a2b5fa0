// KyRefLayerAnswers: the answers that the layer commands (-LAYER, VPLAYER)
// read alike: an option, then the value of a layer property and the layers
// it goes to.
//
// A value the layer can't take (a colour out of range, a linetype the drawing
// lacks, a malformed true colour) is an error line that fails the command. An
// empty answer to a value or to a list of layers leaves the option without a
// change: the read answers false, and the command asks for its next option,
// so that what follows is read as the next answers and the command never
// hangs on a prompt it can't fill.
#pragma once

#include <span>
#include <vector>

#include "KyRefKeywords.h"
#include "base/KyString.h"
#include "db/KyCmColor.h"
#include "db/KyCmTransparency.h"
#include "db/KyDbEnums.h"
#include "db/KyDbObjectId.h"

class KyRefCommandContext;

class KyRefLayerAnswers {
public:
    explicit KyRefLayerAnswers(KyRefCommandContext& context) : m_context(context) {}

    // One of `keywords` (its index), or -1 for an empty answer. A lone "_"
    // counts as empty: it is the global form of an empty answer, which a text
    // whose last argument was empty ends with. A doubled "_" counts once.
    // Anything else is told and asked again.
    int readOption(const wchar_t* prompt, std::span<const KyRefKeyword> keywords);

    // A layer's colour: an index 1 to 255, a colour name ("red", a named
    // colour of no book, "BOOK$NAME"), "r,g,b", or the keywords Truecolor
    // (then red, green and blue) and COlorbook (then the book and the colour).
    bool readColor(KyCmColor& color);
    // The name of a linetype of the drawing (not ByLayer or ByBlock).
    bool readLinetype(KyDbObjectId& linetype);
    // A standard lineweight in millimetres ("0.25", "0.25 mm") or Default.
    bool readLineWeight(KyDb::LineWeight& weight);
    // A transparency in percent, 0 to 90.
    bool readTransparency(KyCmTransparency& transparency);
    // The name of a plot style of the drawing; the drawing must use named
    // plot styles.
    bool readPlotStyle(KyString& name);
    // A list of layers (KyRefLayerNameList).
    bool readLayers(const wchar_t* prompt, std::vector<KyDbObjectId>& layers);

    // Texts of values as the prompts and messages show them.
    static KyString lineWeightText(KyDb::LineWeight weight);
    static KyString linetypeName(KyDbObjectId linetype);

private:
    bool readTrueColor(KyCmColor& color);
    bool readBookColor(KyCmColor& color);

    KyRefCommandContext& m_context;
};
