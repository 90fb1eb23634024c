#include "document/TemplateReader.h"

#include "document/Keywords.h"
#include "document/ParserUtils.h"
#include "document/RecordLines.h"
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

// What a rule tells about the line it reads, when the reader is asked to
// report: the problems of that one line.
class LineNotes {
public:
    LineNotes(TemplateReadReport& report, int line) : report_(report), line_(line) {}

    void Add(Severity severity, const char* code, const std::string& message) {
        report_.diagnostics.push_back(
            Diagnostic{report_.file, line_, severity, code, message, std::string(), 0});
        lostContent_ = lostContent_ || severity == Severity::Error;
    }
    void Error(const char* code, const std::string& message) {
        Add(Severity::Error, code, message);
    }
    bool LostContent() const { return lostContent_; }

private:
    TemplateReadReport& report_;
    int line_;
    bool lostContent_ = false;
};

// One line as the tag rules see it: most read the words, but action and
// gui_helper cut the raw text by position, since their parts may hold brackets,
// and are given no words. `notes` is null unless the reader reports.
struct TemplateLine {
    const std::string& text;
    const Words& words;
    LineNotes* notes;

    void Error(const char* code, const std::string& message) const {
        if (notes != nullptr)
            notes->Error(code, message);
    }
};

// "a, b and c"
std::string Listed(const std::vector<std::string>& items) {
    std::string text;
    for (std::size_t i = 0; i < items.size(); ++i) {
        if (i > 0)
            text += i + 1 == items.size() ? " and " : ", ";
        text += items[i];
    }
    return text;
}

// The fields of `fields` that a line of `count` words, the first `skipped`
// of which are no fields, does not reach.
std::string MissingFields(const std::vector<std::string>& fields, std::size_t count,
                          std::size_t skipped) {
    const std::size_t present = count > skipped ? count - skipped : 0;
    return Listed(std::vector<std::string>(
        fields.begin() + static_cast<std::ptrdiff_t>(std::min(present, fields.size())),
        fields.end()));
}

// Whether atoi finds a number at the start of the word; where it does not,
// it reads 0.
bool StartsWithNumber(const std::string& word) {
    std::size_t i = 0;
    while (i < word.size() && (word[i] == ' ' || word[i] == '\t'))
        ++i;
    if (i < word.size() && (word[i] == '+' || word[i] == '-'))
        ++i;
    return i < word.size() && std::isdigit(static_cast<unsigned char>(word[i])) != 0;
}

void CheckNumber(const TemplateLine& line, const std::string& word, const char* field) {
    if (line.notes != nullptr && !StartsWithNumber(word))
        line.Error("not-a-number", std::string("The ") + field + " " + Quoted(word) +
                                       " is no number and reads as 0.");
}

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
    if (w.size() < 4) {
        line.Error("too-few-fields", "A block set needs a name and at least one block written "
                                     "\"key(file)\"; the line is dropped.");
        return;
    }
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

// The fields behind a phase's name and type, as its type has them.
std::vector<std::string> PhaseFields(const PhaseLayout& layout) {
    std::vector<std::string> fields;
    const char* const parameters[] = {"its base phase", "its second phase"};
    const std::size_t phaseFields = layout.geoParamCount == 5 ? 2 : layout.geoParamCount > 0;
    for (std::size_t i = 0; i < phaseFields; ++i)
        fields.push_back(parameters[i]);
    if (layout.geoParamCount >= 4)
        fields.push_back("its three parameters");
    fields.push_back("its block set");
    if (layout.hasAllocation)
        fields.push_back("its allocation");
    return fields;
}

void NotePhaseProblems(const TemplateLine& line, const PhaseDesc& phase,
                       const PhaseLayout& layout) {
    const Words& w = line.words;
    const std::string keyword = generationTypeToKeyword(phase.generationType);
    if (w[2] != keyword)
        line.Error("unknown-keyword", "The generation type " + Quoted(w[2]) +
                                          " is none of at, azimuth, fractal, line, random, "
                                          "server_setpos, server_waypoint and server_targetpos; "
                                          "the phase is read as server_setpos.");
    if (w.size() < layout.minWords) {
        // Three parameters are one field of the message, but three words.
        const std::size_t words = layout.geoParamCount >= 4 && w.size() > 4
                                      ? std::min<std::size_t>(w.size(), 4 + (w.size() - 4) / 3)
                                      : w.size();
        line.Error("too-few-fields", "The " + keyword + " phase " + Quoted(phase.name) + " lacks " +
                                         MissingFields(PhaseFields(layout), words, 3) +
                                         "; it keeps only its name and type, and no block set.");
    }
}

void ReadPhase(TemplateDesc& desc, const TemplateLine& line) {
    const Words& w = line.words;
    if (w.size() < 3) {
        line.Error("too-few-fields",
                   "A phase needs a name and a generation type; the line is dropped.");
        return;
    }
    PhaseDesc phase;
    phase.name = w[1];
    phase.generationType = generationTypeFromKeyword(w[2]);

    const PhaseLayout layout = LayoutOf(phase.generationType);
    if (line.notes != nullptr)
        NotePhaseProblems(line, phase, layout);
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
    if (w.size() < 5) {
        line.Error("too-few-fields", "A switch lacks " +
                                         MissingFields({"its number", "its preliminary check",
                                                        "its plane type", "its name"},
                                                       w.size(), 1) +
                                         "; the line is dropped.");
        return;
    }
    CheckNumber(line, w[1], "switch's number");
    CheckNumber(line, w[2], "switch's preliminary check");
    CheckNumber(line, w[3], "switch's plane type");
    SwitchDesc switchDesc;
    switchDesc.number = AtoiText(w[1]);
    switchDesc.preliminaryCheck = AtoiText(w[2]);
    switchDesc.planeType = AtoiText(w[3]);
    switchDesc.name = w[4];
    switchDesc.caseNames = Slice(w, 5);
    desc.switches.push_back(std::move(switchDesc));
}

void ReadLink(TemplateDesc& desc, const TemplateLine& line, bool isObjectLink) {
    const Words& w = line.words;
    if (w.size() < 5) {
        line.Error("too-few-fields",
                   "A link lacks " +
                       MissingFields({"its source phase", "its source gate",
                                      "its destination phase", "its destination gate"},
                                     w.size(), 1) +
                       "; the line is dropped.");
        return;
    }
    desc.links.push_back(LinkDesc{isObjectLink, w[1], w[2], w[3], w[4]});
}

void ReadTargetLink(TemplateDesc& desc, const TemplateLine& line) {
    ReadLink(desc, line, false);
}

void ReadObjectLink(TemplateDesc& desc, const TemplateLine& line) {
    ReadLink(desc, line, true);
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
    if (w.size() < 3) {
        line.Error("too-few-fields", "A check needs a phase and a type; the line is dropped.");
        return;
    }
    CheckDesc check;
    check.phaseName = w[1];
    check.type = checkTypeFromKeyword(w[2]);
    if (line.notes != nullptr && checkTypeToKeyword(check.type) != w[2])
        line.Error("unknown-keyword", "The check type " + Quoted(w[2]) +
                                          " is none of squad, location_type, coalition, range, "
                                          "in_radius, free and in_sector; the check is read as "
                                          "free.");
    if (check.type == CheckRange && w.size() > 3 && w.size() < 6)
        line.Error("too-few-fields", "A range check needs three parameters, the phase, the mode "
                                     "and the range; with fewer it keeps none.");
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
    if (names.size() != 2) {
        line.Error("too-few-fields", "An action needs its phase and \"(object,name)\" in "
                                     "brackets; the line is dropped.");
        return;
    }
    action.objectName = names[0];
    action.actionName = names[1];

    if (ReadActionRule(action, text, pos))
        desc.actions.push_back(std::move(action));
    else
        line.Error("too-few-fields", "The action " + Quoted(action.actionName) +
                                         " lacks its rule; the line is dropped.");
}

void ReadUnlink(TemplateDesc& desc, const TemplateLine& line, bool isInput) {
    const Words& w = line.words;
    if (w.size() < 3) {
        line.Error("too-few-fields",
                   "An unlink line needs a block set and at least one gate; the line is dropped.");
        return;
    }
    desc.unlinks.push_back(UnlinkDesc{isInput, w[1], Slice(w, 2)});
}

void ReadUnlinkInput(TemplateDesc& desc, const TemplateLine& line) {
    ReadUnlink(desc, line, true);
}

void ReadUnlinkOutput(TemplateDesc& desc, const TemplateLine& line) {
    ReadUnlink(desc, line, false);
}

// The optional tail of a gui_helper line, from pos behind the y coordinate:
// "owner(detail)", "owner; (detail);" or "\"\"; ( ); colour;". Each part may
// be missing, and what is there is kept.
void ReadGuiHelperTail(GuiHelperDesc& helper, const TemplateLine& line, std::size_t pos) {
    const std::string& text = line.text;
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
    const std::string colour = ParserUtils::getNextWord(text, pos);
    CheckNumber(line, colour, "colour index");
    helper.colorIndex = AtoiText(colour);
}

// "gui_helper; name; x; y;" and a tail; both coordinates are required.
void ReadGuiHelper(TemplateDesc& desc, const TemplateLine& line) {
    const std::string& text = line.text;
    std::size_t pos = 0;
    const auto dropped = [&] {
        line.Error("too-few-fields",
                   "A gui_helper line needs a name and both coordinates; the line is dropped.");
    };
    if (!SkipTag(text, pos) || AtEnd(text, pos))
        return dropped();

    GuiHelperDesc helper;
    helper.objectName = ParserUtils::getNextWord(text, pos);
    ParserUtils::eatAuxChars(text, pos);
    if (AtEnd(text, pos))
        return dropped();
    const std::string x = ParserUtils::getNextWord(text, pos);
    ParserUtils::eatAuxChars(text, pos);
    if (AtEnd(text, pos))
        return dropped();
    const std::string y = ParserUtils::getNextWord(text, pos);
    CheckNumber(line, x, "x coordinate");
    CheckNumber(line, y, "y coordinate");
    helper.x = AtoiText(x);
    helper.y = AtoiText(y);

    ReadGuiHelperTail(helper, line, pos);
    desc.guiHelpers.push_back(std::move(helper));
}

using TagRule = void (*)(TemplateDesc&, const TemplateLine&);

// How many records the tag's list holds, and the line the writer writes for
// the last of them.
using RecordCount = std::size_t (*)(const TemplateDesc&);
using LastRecordLine = std::string (*)(const TemplateDesc&);

template <typename Record, std::vector<Record> TemplateDesc::*list>
std::size_t CountOf(const TemplateDesc& desc) {
    return (desc.*list).size();
}

template <typename Record, std::vector<Record> TemplateDesc::*list,
          std::string (*lineOf)(const Record&)>
std::string LastLineOf(const TemplateDesc& desc) {
    return lineOf((desc.*list).back());
}

struct Tag {
    const char* keyword;
    TagRule read;
    // Whether the rule reads the line's words rather than its text.
    bool byWords;
    RecordCount count;
    LastRecordLine lastLine;
    std::vector<int> RecordSourceLines::*lines;
};

template <typename Record, std::vector<Record> TemplateDesc::*list,
          std::vector<int> RecordSourceLines::*lines, std::string (*lineOf)(const Record&)>
Tag MakeTag(const char* keyword, TagRule read, bool byWords) {
    return Tag{keyword, read, byWords, CountOf<Record, list>, LastLineOf<Record, list, lineOf>,
               lines};
}

using RL = RecordSourceLines;
using TD = TemplateDesc;

// In the order of comparison.
const Tag kTags[] = {
    MakeTag<BlockSetDesc, &TD::blockSets, &RL::blockSets, BlockSetLine>("blocks_set", ReadBlockSet,
                                                                        true),
    MakeTag<PhaseDesc, &TD::phases, &RL::phases, PhaseLine>("phase", ReadPhase, true),
    MakeTag<CaseDesc, &TD::cases, &RL::cases, CaseLine>("case", ReadCase, true),
    MakeTag<SwitchDesc, &TD::switches, &RL::switches, SwitchLine>("switch", ReadSwitch, true),
    MakeTag<LinkDesc, &TD::links, &RL::links, LinkLine>("tlink", ReadTargetLink, true),
    MakeTag<LinkDesc, &TD::links, &RL::links, LinkLine>("olink", ReadObjectLink, true),
    MakeTag<CheckDesc, &TD::checks, &RL::checks, CheckLine>("check", ReadCheck, true),
    MakeTag<ActionDesc, &TD::actions, &RL::actions, ActionLine>("action", ReadAction, false),
    MakeTag<UnlinkDesc, &TD::unlinks, &RL::unlinks, UnlinkLine>("unlink_nonplayer_input",
                                                                ReadUnlinkInput, true),
    MakeTag<UnlinkDesc, &TD::unlinks, &RL::unlinks, UnlinkLine>("unlink_nonplayer_output",
                                                                ReadUnlinkOutput, true),
    MakeTag<GuiHelperDesc, &TD::guiHelpers, &RL::guiHelpers, GuiHelperLine>("gui_helper",
                                                                            ReadGuiHelper, false),
};

// The rule of the line's first word when a second word follows, counted as
// parseLineIntoWords counts them; a line of fewer words is dropped. `first`,
// when given, takes the first word.
const Tag* TagOf(const std::string& text, bool& holdsWords, std::string* first = nullptr) {
    std::size_t pos = 0;
    holdsWords = ParserUtils::skipToWord(text, pos);
    if (!holdsWords)
        return nullptr;
    const std::string keyword = ParserUtils::getNextWord(text, pos);
    if (first != nullptr)
        *first = keyword;
    if (!ParserUtils::skipToWord(text, pos))
        return nullptr;
    for (const Tag& tag : kTags) {
        if (keyword == tag.keyword)
            return &tag;
    }
    return nullptr;
}

// The number of single-character edits that turn one text into the other.
// `b` is a tag of at most 23 characters, so a word of any length costs time
// in proportion to its length.
std::size_t EditDistance(const std::string& a, const std::string& b) {
    std::vector<std::size_t> row(b.size() + 1);
    for (std::size_t j = 0; j <= b.size(); ++j)
        row[j] = j;
    for (std::size_t i = 1; i <= a.size(); ++i) {
        std::size_t diagonal = row[0];
        row[0] = i;
        for (std::size_t j = 1; j <= b.size(); ++j) {
            const std::size_t above = row[j];
            row[j] = std::min(
                {row[j] + 1, row[j - 1] + 1,
                 diagonal +
                     (std::tolower(static_cast<unsigned char>(a[i - 1])) == b[j - 1] ? 0 : 1)});
            diagonal = above;
        }
    }
    return row[b.size()];
}

void NoteUnknownTag(LineNotes& notes, const std::string& keyword) {
    std::string message = "The line begins with " + Quoted(keyword) + ", which is no tag";
    if (!keyword.empty() && keyword[0] == '#') {
        message += " (only a \"#\" in the very first column begins a comment)";
    } else {
        const Tag* nearest = nullptr;
        std::size_t best = 3;
        for (const Tag& tag : kTags) {
            const std::size_t distance = EditDistance(keyword, tag.keyword);
            if (distance < best) {
                best = distance;
                nearest = &tag;
            }
        }
        if (nearest != nullptr)
            message += std::string(" (did you mean \"") + nearest->keyword + "\"?)";
    }
    notes.Error("unknown-tag", message + "; the line is dropped.");
}

// A line of its tag alone, or of a word that is no tag.
void NoteLineWithoutRecord(LineNotes& notes, const std::string& keyword) {
    for (const Tag& tag : kTags) {
        if (keyword == tag.keyword) {
            notes.Error("too-few-fields", "A " + keyword +
                                              " line needs more than its tag; the "
                                              "line is dropped.");
            return;
        }
    }
    NoteUnknownTag(notes, keyword);
}

// Quotes and brackets that are never closed are read in a fixed way, which
// may not be what was meant.
void NoteOpenQuotesAndBrackets(LineNotes& notes, const std::string& text) {
    std::size_t quotes = 0;
    int depth = 0;
    bool unclosedBracket = false;
    for (const char c : text) {
        if (c == '"')
            ++quotes;
        else if (c == '(')
            ++depth;
        else if (c == ')' && depth > 0)
            --depth;
    }
    unclosedBracket = depth > 0;
    if (quotes % 2 != 0)
        notes.Add(Severity::Warning, "stray-quote",
                  "A double quote on this line is never closed; it is read as a separator.");
    if (unclosedBracket)
        notes.Add(Severity::Warning, "unclosed-bracket",
                  "A bracket on this line is never closed; it is read as closed at the first "
                  "\")\" or at the end of the line.");
}

// The words of a line in byte order: the writer puts a block set's blocks in
// the order of their keys, which changes no content.
Words SortedWords(const std::string& text) {
    Words words;
    ParserUtils::parseLineIntoWords(words, text);
    words.erase(std::remove(words.begin(), words.end(), std::string()), words.end());
    std::sort(words.begin(), words.end());
    return words;
}

// A record whose line, as the writer writes it, holds other words than the
// line read: a save would change more than spacing, order, comments and line
// ends.
void NoteChangeOnSave(LineNotes& notes, const std::string& text, const std::string& written) {
    if (SortedWords(text) != SortedWords(written))
        notes.Error("changed-on-save", "The line will be saved as " + Quoted(written, 200) + ".");
}

// Reads one line that holds words, reporting into `report` when given.
void ReadLine(TemplateDesc& desc, const std::string& text, Words& words, TemplateReadReport* report,
              int lineNumber, std::size_t& linesWithWords) {
    bool holdsWords = false;
    std::string keyword;
    const Tag* tag = TagOf(text, holdsWords, report != nullptr ? &keyword : nullptr);
    linesWithWords += holdsWords ? 1 : 0;
    if (report == nullptr) {
        if (tag == nullptr)
            return;
        words.clear();
        if (tag->byWords)
            ParserUtils::parseLineIntoWords(words, text);
        tag->read(desc, TemplateLine{text, words, nullptr});
        return;
    }
    LineNotes notes(*report, lineNumber);
    if (holdsWords)
        NoteOpenQuotesAndBrackets(notes, text);
    if (tag == nullptr) {
        if (holdsWords)
            NoteLineWithoutRecord(notes, keyword);
        return;
    }
    words.clear();
    if (tag->byWords)
        ParserUtils::parseLineIntoWords(words, text);
    const std::size_t before = tag->count(desc);
    tag->read(desc, TemplateLine{text, words, &notes});
    if (tag->count(desc) == before)
        return;
    (report->lines.*(tag->lines)).push_back(lineNumber);
    if (!notes.LostContent())
        NoteChangeOnSave(notes, text, tag->lastLine(desc));
}

} // namespace

// The words of most lines are split only once their tag is known to read
// them: the gui helper and action lines that make up most of a template are
// cut from their text alone.
std::size_t ReadTemplateDesc(TemplateDesc& desc, std::istream& stream, TemplateReadReport* report) {
    std::string text;
    Words words;
    std::size_t linesWithWords = 0;
    int lineNumber = 0;
    while (ReadTextLine(stream, text)) {
        ++lineNumber;
        if (text.empty() || text[0] == '#')
            continue;
        ReadLine(desc, text, words, report, lineNumber, linesWithWords);
    }
    return linesWithWords;
}

} // namespace lw
