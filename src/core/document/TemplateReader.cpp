#include "document/TemplateReader.h"

#include "document/Keywords.h"
#include "document/ParserUtils.h"
#include "text/Text.h"
#include "text/TextLines.h"

#include <algorithm>
#include <cctype>
#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

using SortieKitSpace::ParserUtils;

namespace lw {

namespace {

using Words = std::vector<std::string>;

// One line as the tag rules see it: most read the words, but action and
// gui_helper cut the raw text by position, since their parts may hold brackets,
// and are given no words.
struct TemplateLine {
    const std::string& text;
    const Words& words;
};

// The words from first up to, not including, end, as far as there are any.
Words Slice(const Words& words, std::size_t first, std::size_t end = SIZE_MAX) {
    end = std::min(end, words.size());
    if (first >= end)
        return {};
    return Words(words.begin() + static_cast<std::ptrdiff_t>(first),
                 words.begin() + static_cast<std::ptrdiff_t>(end));
}

void ReadBlockSet(TemplateDesc& desc, const TemplateLine& line) {
    const Words& w = line.words;
    if (w.size() < 4)
        return;
    BlockSetDesc blockSet;
    blockSet.name = w[1];
    for (std::size_t key = 2; key + 1 < w.size(); key += 2)
        blockSet.blocks[w[key]] = w[key + 1];
    desc.blockSets.push_back(std::move(blockSet));
}

// What a phase line holds behind its name and type, which depends on the
// type. A line with fewer than minWords words keeps only name and type.
struct PhaseLayout {
    std::size_t minWords;
    std::size_t geoParamCount;
    bool hasAllocation;
};

PhaseLayout LayoutOf(GenerationType type) {
    switch (type) {
    case GenerationAt:
    case GenerationRandom:
        return {6, 1, true};
    case GenerationAzimuth:
        return {8, 4, false};
    case GenerationFractal:
    case GenerationLine:
        return {9, 5, false};
    case GenerationServerWaypoint:
        return {5, 0, true};
    default:
        return {4, 0, false};
    }
}

void ReadPhase(TemplateDesc& desc, const TemplateLine& line) {
    const Words& w = line.words;
    if (w.size() < 3)
        return;
    PhaseDesc phase;
    phase.name = w[1];
    phase.generationType = generationTypeFromKeyword(w[2]);

    const PhaseLayout layout = LayoutOf(phase.generationType);
    if (w.size() >= layout.minWords) {
        std::size_t next = 3;
        for (; next < 3 + layout.geoParamCount; ++next)
            phase.geoParams.push_back(w[next]);
        phase.blockSetName = w[next++];
        if (layout.hasAllocation)
            phase.allocationType = w[next++];
        if (next < w.size())
            phase.blocksFolder = w[next];
    }
    desc.phases.push_back(std::move(phase));
}

// Needs no more than the two words that TagOf has counted on every line it
// hands to a tag, by the same rules as the words themselves.
void ReadCase(TemplateDesc& desc, const TemplateLine& line) {
    CaseDesc caseDesc;
    caseDesc.name = line.words[1];
    caseDesc.phaseNames = Slice(line.words, 2);
    desc.cases.push_back(std::move(caseDesc));
}

void ReadSwitch(TemplateDesc& desc, const TemplateLine& line) {
    const Words& w = line.words;
    if (w.size() < 5)
        return;
    SwitchDesc switchDesc;
    switchDesc.number = AtoiText(w[1]);
    switchDesc.preliminaryCheck = AtoiText(w[2]);
    switchDesc.planeType = AtoiText(w[3]);
    switchDesc.name = w[4];
    switchDesc.caseNames = Slice(w, 5);
    desc.switches.push_back(std::move(switchDesc));
}

void ReadLink(TemplateDesc& desc, const Words& w, bool isObjectLink) {
    if (w.size() < 5)
        return;
    desc.links.push_back(LinkDesc{isObjectLink, w[1], w[2], w[3], w[4]});
}

void ReadTargetLink(TemplateDesc& desc, const TemplateLine& line) {
    ReadLink(desc, line.words, false);
}

void ReadObjectLink(TemplateDesc& desc, const TemplateLine& line) {
    ReadLink(desc, line.words, true);
}

// How many words behind the keyword each check type keeps. Range is all or
// nothing: it takes its three words only when all three are there.
Words CheckParams(CheckType type, const Words& w) {
    switch (type) {
    case CheckSquad:
    case CheckInRadius:
    case CheckInSector:
        return Slice(w, 3, 5);
    case CheckLocationType:
        return Slice(w, 3);
    case CheckCoalition:
        return Slice(w, 3, 4);
    case CheckRange:
        return w.size() >= 6 ? Slice(w, 3, 6) : Words{};
    default:
        return {};
    }
}

void ReadCheck(TemplateDesc& desc, const TemplateLine& line) {
    const Words& w = line.words;
    if (w.size() < 3)
        return;
    CheckDesc check;
    check.phaseName = w[1];
    check.type = checkTypeFromKeyword(w[2]);
    check.params = CheckParams(check.type, w);
    desc.checks.push_back(std::move(check));
}

void SkipWhiteSpace(const std::string& text, std::size_t& pos) {
    while (pos < text.size() && std::isspace(static_cast<unsigned char>(text[pos])))
        ++pos;
}

bool AtEnd(const std::string& text, std::size_t pos) {
    return pos >= text.size();
}

// Lines cut by position begin with their tag: moves pos behind it and the
// separators that follow. False for a line of white space only.
bool SkipTag(const std::string& text, std::size_t& pos) {
    SkipWhiteSpace(text, pos);
    if (AtEnd(text, pos))
        return false;
    ParserUtils::getNextWord(text, pos);
    ParserUtils::eatAuxChars(text, pos);
    return true;
}

// The rule part of an action line, from pos behind the action's brackets:
// "rule(params);condition". False when the line ends before the rule's
// brackets could begin.
bool ReadActionRule(ActionDesc& action, const std::string& text, std::size_t pos) {
    ParserUtils::eatAuxChars(text, pos);
    if (AtEnd(text, pos))
        return false;
    action.ruleName = ParserUtils::getNextWord(text, pos);
    if (AtEnd(text, pos))
        return false;
    ParserUtils::getParamsInBrackets(action.ruleParams, text, pos);

    // The condition is free text and is kept as it stands, blanks included.
    if (!AtEnd(text, pos)) {
        ParserUtils::eatAuxChars(text, pos);
        if (!AtEnd(text, pos))
            action.ruleCondition = text.substr(pos);
    }
    return true;
}

// "action; phase(object,name); rule(params);condition"
void ReadAction(TemplateDesc& desc, const TemplateLine& line) {
    const std::string& text = line.text;
    std::size_t pos = 0;
    if (!SkipTag(text, pos))
        return;

    ActionDesc action;
    if (!AtEnd(text, pos))
        action.phaseName = ParserUtils::getNextWord(text, pos);

    // "(,name)" is two entries, the form of an action without an object name.
    Words names;
    ParserUtils::getParamsInBrackets(names, text, pos);
    if (names.size() != 2)
        return;
    action.objectName = names[0];
    action.actionName = names[1];

    if (ReadActionRule(action, text, pos))
        desc.actions.push_back(std::move(action));
}

void ReadUnlink(TemplateDesc& desc, const Words& w, bool isInput) {
    if (w.size() < 3)
        return;
    desc.unlinks.push_back(UnlinkDesc{isInput, w[1], Slice(w, 2)});
}

void ReadUnlinkInput(TemplateDesc& desc, const TemplateLine& line) {
    ReadUnlink(desc, line.words, true);
}

void ReadUnlinkOutput(TemplateDesc& desc, const TemplateLine& line) {
    ReadUnlink(desc, line.words, false);
}

// The optional tail of a gui_helper line, from pos behind the y coordinate:
// "owner(detail)", "owner; (detail);" or "\"\"; ( ); colour;". Each part may
// be missing, and what is there is kept.
void ReadGuiHelperTail(GuiHelperDesc& helper, const std::string& text, std::size_t pos) {
    ParserUtils::eatAuxChars(text, pos);
    if (AtEnd(text, pos))
        return;
    helper.ownerName = ParserUtils::getNextWord(text, pos);
    if (AtEnd(text, pos))
        return;
    Words details;
    ParserUtils::getParamsInBrackets(details, text, pos);
    if (!details.empty())
        helper.detail = details.front();
    ParserUtils::eatAuxChars(text, pos);
    if (AtEnd(text, pos))
        return;
    helper.colorIndex = AtoiText(ParserUtils::getNextWord(text, pos));
}

// "gui_helper; name; x; y;" and a tail; both coordinates are required.
void ReadGuiHelper(TemplateDesc& desc, const TemplateLine& line) {
    const std::string& text = line.text;
    std::size_t pos = 0;
    if (!SkipTag(text, pos) || AtEnd(text, pos))
        return;

    GuiHelperDesc helper;
    helper.objectName = ParserUtils::getNextWord(text, pos);
    ParserUtils::eatAuxChars(text, pos);
    if (AtEnd(text, pos))
        return;
    helper.x = AtoiText(ParserUtils::getNextWord(text, pos));
    ParserUtils::eatAuxChars(text, pos);
    if (AtEnd(text, pos))
        return;
    helper.y = AtoiText(ParserUtils::getNextWord(text, pos));

    ReadGuiHelperTail(helper, text, pos);
    desc.guiHelpers.push_back(std::move(helper));
}

using TagRule = void (*)(TemplateDesc&, const TemplateLine&);

struct Tag {
    const char* keyword;
    TagRule read;
    // Whether the rule reads the line's words rather than its text.
    bool byWords;
};

// In the order of comparison.
const Tag kTags[] = {
    {"blocks_set", ReadBlockSet, true},
    {"phase", ReadPhase, true},
    {"case", ReadCase, true},
    {"switch", ReadSwitch, true},
    {"tlink", ReadTargetLink, true},
    {"olink", ReadObjectLink, true},
    {"check", ReadCheck, true},
    {"action", ReadAction, false},
    {"unlink_nonplayer_input", ReadUnlinkInput, true},
    {"unlink_nonplayer_output", ReadUnlinkOutput, true},
    {"gui_helper", ReadGuiHelper, false},
};

// The rule of the line's first word when a second word follows, counted as
// parseLineIntoWords counts them; a line of fewer words is dropped.
const Tag* TagOf(const std::string& text, bool& holdsWords) {
    std::size_t pos = 0;
    holdsWords = ParserUtils::skipToWord(text, pos);
    if (!holdsWords)
        return nullptr;
    const std::string keyword = ParserUtils::getNextWord(text, pos);
    if (!ParserUtils::skipToWord(text, pos))
        return nullptr;
    for (const Tag& tag : kTags) {
        if (keyword == tag.keyword)
            return &tag;
    }
    return nullptr;
}

} // namespace

// The words of most lines are split only once their tag is known to read
// them: the gui helper and action lines that make up most of a template are
// cut from their text alone.
std::size_t ReadTemplateDesc(TemplateDesc& desc, std::istream& stream) {
    std::string text;
    Words words;
    std::size_t linesWithWords = 0;
    while (ReadTextLine(stream, text)) {
        if (text.empty() || text[0] == '#')
            continue;
        bool holdsWords = false;
        const Tag* tag = TagOf(text, holdsWords);
        linesWithWords += holdsWords ? 1 : 0;
        if (tag == nullptr)
            continue;
        words.clear();
        if (tag->byWords)
            ParserUtils::parseLineIntoWords(words, text);
        tag->read(desc, TemplateLine{text, words});
    }
    return linesWithWords;
}

} // namespace lw
