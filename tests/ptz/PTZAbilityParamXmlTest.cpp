#include "ptz/PTZAbilityParamXml.h"

#include "tests/support/Documents.h"

#include <iterator>
#include <utility>

namespace
{

const char* const goldenName = "ptz/PTZAbilityParamXml.node.xml";

PTZOSDParam text(int type, int showTime, int x, int y)
{
    PTZOSDParam text;
    text.setOSDType(type);
    text.setShowTime(showTime);
    text.setX(x);
    text.setY(y);
    return text;
}

PTZStageToSpeedParam stage(int level, int pan, int tilt)
{
    PTZStageToSpeedParam stage;
    stage.setStage(level);
    stage.setPanSpeed(pan);
    stage.setTiltSpeed(tilt);
    return stage;
}

MagnifyPTSpeedParam magnify(int magnification, const std::vector<PTZStageToSpeedParam>& stages)
{
    MagnifyPTSpeedParam magnify;
    magnify.setMagnify(magnification);
    magnify.setPTZStageToSpeedParamList(stages);
    return magnify;
}

PTZAbilityParam sample()
{
    PTZAbilityParam ability;
    ability.getMaxOpticalMagnificationParam().setMaxOpticalMagnification(30);
    ability.getMaxOpticalMagnificationParam().setMaxRealOpticalMagnification(28);
    ability.setPTZOSDParamList({text(1, 2, 3, 4), text(5, 6, 7, 8)});
    ability.getPTSpeedTable().setSpeedType(9);
    ability.getPTSpeedTable().setMagnifyPTSpeedParamList(
        {magnify(10, {stage(11, 12, 13), stage(14, 15, 16)}), magnify(17, {})});

    PTZSpeedParamV2 speed;
    speed.setEnable(true);
    speed.setSpeedRange(18, 19);
    speed.setPanStepPeriod(20);
    speed.setTiltStepPeriod(21);
    speed.setPanGotoMaxSpeed(22);
    speed.setTiltGotoMaxSpeed(23);
    ability.setPTZSpeedParam(speed);

    ability.getThreeDimensionalPositionAbilityParam().setEnable(true);

    TraceAbilityParamV2 trace;
    trace.setEnable(true);
    trace.setTraceMaxSecond(24);
    trace.setTraceMaxCmdNum(25);
    trace.setIDRange(26, 27);
    ability.setTraceAbilityParam(trace);

    TourAbilityParamV2 tour;
    tour.setEnable(true);
    tour.setTourMaxPresetNum(31);
    tour.setIDRange(32, 33);
    ability.setTourAbilityParam(tour);

    ScanAbilityParamV2 scan;
    scan.setEnable(true);
    scan.setScanMaxNum(34);
    scan.setIDRange(35, 36);
    ability.setScanAbilityParam(scan);

    PresetPosAbilityParam preset;
    preset.setEnable(true);
    preset.setPresetMaxNum(37);
    preset.setIDRange(38, 39);
    ability.setPresetPosAbilityParam(preset);

    ability.getGuardPosAbilityParam().setEnable(true);
    ability.getInfraredLampAbilityParam().setEnable(true);
    ability.getDueNorthAbilityParam().setEnable(true);
    ability.getTimerAbilityParam().setEnable(true);
    return ability;
}

std::pair<int, int> speedRange(const PTZSpeedParamV2& speed)
{
    std::pair<int, int> range;
    speed.getSpeedRange(range.first, range.second);
    return range;
}

template <class Module>
std::pair<int, int> idRange(const Module& module)
{
    std::pair<int, int> range;
    module.getIDRange(range.first, range.second);
    return range;
}

void expectTexts(const std::vector<PTZOSDParam>& expected, const std::vector<PTZOSDParam>& texts)
{
    ASSERT_EQ(expected.size(), texts.size());
    for (std::size_t number = 0; number < texts.size(); ++number)
    {
        EXPECT_EQ(expected[number].getOSDType(), texts[number].getOSDType());
        EXPECT_EQ(expected[number].getShowTime(), texts[number].getShowTime());
        EXPECT_EQ(expected[number].getX(), texts[number].getX());
        EXPECT_EQ(expected[number].getY(), texts[number].getY());
    }
}

void expectTable(const PTSpeedTable& expected, const PTSpeedTable& table)
{
    EXPECT_EQ(expected.getSpeedType(), table.getSpeedType());
    ASSERT_EQ(expected.getMagnifyPTSpeedParamList().size(), table.getMagnifyPTSpeedParamList().size());
    for (std::size_t number = 0; number < table.getMagnifyPTSpeedParamList().size(); ++number)
    {
        const MagnifyPTSpeedParam& wanted = expected.getMagnifyPTSpeedParamList()[number];
        const MagnifyPTSpeedParam& magnify = table.getMagnifyPTSpeedParamList()[number];
        EXPECT_EQ(wanted.getMagnify(), magnify.getMagnify());
        ASSERT_EQ(wanted.getPTZStageToSpeedParamList().size(), magnify.getPTZStageToSpeedParamList().size());
        for (std::size_t level = 0; level < magnify.getPTZStageToSpeedParamList().size(); ++level)
        {
            const PTZStageToSpeedParam& wantedStage = wanted.getPTZStageToSpeedParamList()[level];
            const PTZStageToSpeedParam& stage = magnify.getPTZStageToSpeedParamList()[level];
            EXPECT_EQ(wantedStage.getStage(), stage.getStage());
            EXPECT_EQ(wantedStage.getPanSpeed(), stage.getPanSpeed());
            EXPECT_EQ(wantedStage.getTiltSpeed(), stage.getTiltSpeed());
        }
    }
}

void expectSpeed(const PTZSpeedParamV2& expected, const PTZSpeedParamV2& speed)
{
    EXPECT_EQ(expected.getEnable(), speed.getEnable());
    EXPECT_EQ(speedRange(expected), speedRange(speed));
    EXPECT_EQ(expected.getPanStepPeriod(), speed.getPanStepPeriod());
    EXPECT_EQ(expected.getTiltStepPeriod(), speed.getTiltStepPeriod());
    EXPECT_EQ(expected.getPanGotoMaxSpeed(), speed.getPanGotoMaxSpeed());
    EXPECT_EQ(expected.getTiltGotoMaxSpeed(), speed.getTiltGotoMaxSpeed());
}

void expectAbility(const PTZAbilityParam& expected, const PTZAbilityParam& ability)
{
    EXPECT_EQ(expected.getMaxOpticalMagnificationParam().getMaxOpticalMagnification(),
              ability.getMaxOpticalMagnificationParam().getMaxOpticalMagnification());
    EXPECT_EQ(expected.getMaxOpticalMagnificationParam().getMaxRealOpticalMagnification(),
              ability.getMaxOpticalMagnificationParam().getMaxRealOpticalMagnification());
    expectTexts(expected.getPTZOSDParamList(), ability.getPTZOSDParamList());
    expectTable(expected.getPTSpeedTable(), ability.getPTSpeedTable());
    expectSpeed(expected.getPTZSpeedParam(), ability.getPTZSpeedParam());
    EXPECT_EQ(expected.getThreeDimensionalPositionAbilityParam().getEnable(),
              ability.getThreeDimensionalPositionAbilityParam().getEnable());
    EXPECT_EQ(expected.getTraceAbilityParam().getEnable(), ability.getTraceAbilityParam().getEnable());
    EXPECT_EQ(expected.getTraceAbilityParam().getTraceMaxSecond(), ability.getTraceAbilityParam().getTraceMaxSecond());
    EXPECT_EQ(expected.getTraceAbilityParam().getTraceMaxCmdNum(), ability.getTraceAbilityParam().getTraceMaxCmdNum());
    EXPECT_EQ(idRange(expected.getTraceAbilityParam()), idRange(ability.getTraceAbilityParam()));
    EXPECT_EQ(expected.getTourAbilityParam().getEnable(), ability.getTourAbilityParam().getEnable());
    EXPECT_EQ(expected.getTourAbilityParam().getTourMaxPresetNum(),
              ability.getTourAbilityParam().getTourMaxPresetNum());
    EXPECT_EQ(idRange(expected.getTourAbilityParam()), idRange(ability.getTourAbilityParam()));
    EXPECT_EQ(expected.getScanAbilityParam().getEnable(), ability.getScanAbilityParam().getEnable());
    EXPECT_EQ(expected.getScanAbilityParam().getScanMaxNum(), ability.getScanAbilityParam().getScanMaxNum());
    EXPECT_EQ(idRange(expected.getScanAbilityParam()), idRange(ability.getScanAbilityParam()));
    EXPECT_EQ(expected.getPresetPosAbilityParam().getEnable(), ability.getPresetPosAbilityParam().getEnable());
    EXPECT_EQ(expected.getPresetPosAbilityParam().getPresetMaxNum(),
              ability.getPresetPosAbilityParam().getPresetMaxNum());
    EXPECT_EQ(idRange(expected.getPresetPosAbilityParam()), idRange(ability.getPresetPosAbilityParam()));
    EXPECT_EQ(expected.getGuardPosAbilityParam().getEnable(), ability.getGuardPosAbilityParam().getEnable());
    EXPECT_EQ(expected.getInfraredLampAbilityParam().getEnable(), ability.getInfraredLampAbilityParam().getEnable());
    EXPECT_EQ(expected.getDueNorthAbilityParam().getEnable(), ability.getDueNorthAbilityParam().getEnable());
    EXPECT_EQ(expected.getTimerAbilityParam().getEnable(), ability.getTimerAbilityParam().getEnable());
}

/// The golden without the first occurrence of @p piece, or with @p other in its place.
std::string goldenWithout(const std::string& piece, const std::string& other = "")
{
    std::string text = golden(goldenName);
    const std::size_t place = text.find(piece);
    EXPECT_NE(std::string::npos, place) << piece;
    return text.replace(place, piece.size(), other);
}

/// Where each block of the document begins.
const char* const blocks[] = {"MaxOpticalMagnificationParam",
                              "PTZOSDParamList",
                              "PTZSpeedConfig",
                              "ThreeDimensionalPosition",
                              "TraceAbilityParam",
                              "TourAbilityParam",
                              "ScanAbilityParam",
                              "PresetPosAbilityParam",
                              "GuardPosAbilityParam",
                              "InfraredLampAbilityParam",
                              "DueNorthAbilityParam",
                              "TimerAbilityParam"};

/// What the record holds after the first blocks of the sample, @p count of them.
PTZAbilityParam firstBlocks(std::size_t count)
{
    const PTZAbilityParam all = sample();
    PTZAbilityParam first;
    if (count > 0) first.setMaxOpticalMagnificationParam(all.getMaxOpticalMagnificationParam());
    if (count > 1) first.setPTZOSDParamList(all.getPTZOSDParamList());
    if (count > 2) first.setPTSpeedTable(all.getPTSpeedTable());
    if (count > 2) first.setPTZSpeedParam(all.getPTZSpeedParam());
    if (count > 3) first.setThreeDimensionalPositionAbilityParam(all.getThreeDimensionalPositionAbilityParam());
    if (count > 4) first.setTraceAbilityParam(all.getTraceAbilityParam());
    if (count > 5) first.setTourAbilityParam(all.getTourAbilityParam());
    if (count > 6) first.setScanAbilityParam(all.getScanAbilityParam());
    if (count > 7) first.setPresetPosAbilityParam(all.getPresetPosAbilityParam());
    if (count > 8) first.setGuardPosAbilityParam(all.getGuardPosAbilityParam());
    if (count > 9) first.setInfraredLampAbilityParam(all.getInfraredLampAbilityParam());
    if (count > 10) first.setDueNorthAbilityParam(all.getDueNorthAbilityParam());
    return first;
}

} // namespace

TEST(PTZAbilityParamXml, Writes)
{
    std::string text;
    ASSERT_TRUE(PTZAbilityParamXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, goldenName));
}

TEST(PTZAbilityParamXml, Reads)
{
    CapturedOutput output;
    PTZAbilityParam read;
    ASSERT_TRUE(PTZAbilityParamXml().parseXmlString(golden(goldenName), read));
    expectAbility(sample(), read);
    EXPECT_EQ("", output.text());
}

TEST(PTZAbilityParamXml, ReadsInPlaceOfWhatTheRecordHolds)
{
    std::string text;
    ASSERT_TRUE(PTZAbilityParamXml().createXmlString(PTZAbilityParam(), text));
    PTZAbilityParam read = sample();
    ASSERT_TRUE(PTZAbilityParamXml().parseXmlString(text, read));
    expectAbility(PTZAbilityParam(), read);
}

TEST(PTZAbilityParamXml, CarriesEachAbilityOnItsOwn)
{
    for (const char* block : {"PTZSpeedConfig", "ThreeDimensionalPosition", "TraceAbilityParam", "TourAbilityParam",
                              "ScanAbilityParam", "PresetPosAbilityParam", "GuardPosAbilityParam",
                              "InfraredLampAbilityParam", "DueNorthAbilityParam", "TimerAbilityParam"})
    {
        SCOPED_TRACE(block);
        const std::string opening = std::string("<") + block + " enable=";
        const std::string disabled = goldenWithout(opening + "\"true\"", opening + "\"false\"");
        PTZAbilityParam read;
        ASSERT_TRUE(PTZAbilityParamXml().parseXmlString(disabled, read));
        std::string text;
        ASSERT_TRUE(PTZAbilityParamXml().createXmlString(read, text));
        EXPECT_EQ(disabled, text);
    }
}

TEST(PTZAbilityParamXml, StopsAtTheFirstMissingBlock)
{
    for (std::size_t number = 0; number < std::size(blocks); ++number)
    {
        SCOPED_TRACE(blocks[number]);
        // Elements are closed by "/>" or by their name, so the opening and the closing one are renamed alike.
        std::string text = goldenWithout(std::string("<") + blocks[number], "<Other");
        const std::string end = std::string("</") + blocks[number] + ">";
        const std::size_t place = text.find(end);
        if (place != std::string::npos) text.replace(place, end.size(), "</Other>");

        CapturedOutput output;
        PTZAbilityParam read;
        EXPECT_FALSE(PTZAbilityParamXml().parseXmlString(text, read));
        expectAbility(firstBlocks(number), read);
        EXPECT_EQ("", output.text());
    }
}

TEST(PTZAbilityParamXml, StopsAtTheFirstMissingProperty)
{
    const std::pair<const char*, std::size_t> properties[] = {
        {" maxOpticalMaginification=\"30\"", 0},
        {" maxRealOpticalMagnification=\"28\"", 0},
        {" OSDType=\"5\"", 1},
        {" ShowTime=\"6\"", 1},
        {" X=\"7\"", 1},
        {" Y=\"8\"", 1},
        {" minSpeed=\"18\"", 2},
        {" maxSpeed=\"19\"", 2},
        {" pan=\"20\"", 2},
        {" tilt=\"21\"", 2},
        {" SpeedType=\"9\"", 2},
        {" magnify=\"17\"", 2},
        {" level=\"14\"", 2},
        {" pan=\"15\"", 2},
        {" tilt=\"16\"", 2},
        {" traceMaxSecond=\"24\"", 4},
        {" traceMaxCmdNum=\"25\"", 4},
        {" idRangeFrom=\"26\"", 4},
        {" idRangeTo=\"27\"", 4},
        {" tourMaxPresetNum=\"31\"", 5},
        {" idRangeFrom=\"32\"", 5},
        {" idRangeTo=\"33\"", 5},
        {" scanMaxNum=\"34\"", 6},
        {" idRangeFrom=\"35\"", 6},
        {" idRangeTo=\"36\"", 6},
        {" presetMaxNum=\"37\"", 7},
        {" idRangeFrom=\"38\"", 7},
        {" idRangeTo=\"39\"", 7},
    };
    for (const auto& property : properties)
    {
        SCOPED_TRACE(property.first);
        PTZAbilityParam read;
        EXPECT_FALSE(PTZAbilityParamXml().parseXmlString(goldenWithout(property.first), read));
        expectAbility(firstBlocks(property.second), read);
    }
    for (std::size_t number = 2; number < std::size(blocks); ++number)
    {
        SCOPED_TRACE(blocks[number]);
        PTZAbilityParam read;
        const std::string opening = std::string("<") + blocks[number];
        EXPECT_FALSE(PTZAbilityParamXml().parseXmlString(goldenWithout(opening + " enable=\"true\"", opening), read));
        expectAbility(firstBlocks(number), read);
    }
}

TEST(PTZAbilityParamXml, KeepsTheSpeedTableWithoutTheSpeedsBehindIt)
{
    for (const char* piece : {"<GotoMaxSpeed pan=\"22\" tilt=\"23\" />", " pan=\"22\"", " tilt=\"23\""})
    {
        PTZAbilityParam expected = firstBlocks(2);
        expected.setPTSpeedTable(sample().getPTSpeedTable());
        PTZAbilityParam read;
        EXPECT_FALSE(PTZAbilityParamXml().parseXmlString(goldenWithout(piece), read));
        expectAbility(expected, read);
    }
}

TEST(PTZAbilityParamXml, NeedsEveryElementOfTheSpeeds)
{
    for (const char* piece : {"<StepPeriod pan=\"20\" tilt=\"21\" />", "<MoveSpeed"})
    {
        std::string text = goldenWithout(piece, piece[1] == 'M' ? "<Other" : "");
        if (piece[1] == 'M') text.replace(text.find("</MoveSpeed>"), 12, "</Other>");
        PTZAbilityParam read;
        EXPECT_FALSE(PTZAbilityParamXml().parseXmlString(text, read));
        expectAbility(firstBlocks(2), read);
    }
}

TEST(PTZAbilityParamXml, RefusesTheRightSpelling)
{
    PTZAbilityParam read;
    EXPECT_FALSE(PTZAbilityParamXml().parseXmlString(
        goldenWithout("maxOpticalMaginification", "maxOpticalMagnification"), read));
    expectAbility(PTZAbilityParam(), read);
}

TEST(PTZAbilityParamXml, PassesOverItemsOfOtherNames)
{
    std::string text = goldenWithout("<PTZOSDParam OSDType=\"1\" ShowTime=\"2\" X=\"3\" Y=\"4\" />",
                                     "text<!--PTZOSDParam--><Other />");
    const std::string first = "<MagnifyItem level=\"11\" pan=\"12\" tilt=\"13\" />";
    text.replace(text.find(first), first.size(), "<Other />");
    const std::string last = "<Magnify magnify=\"17\" />";
    text.replace(text.find(last), last.size(), "<Other />");

    PTZAbilityParam expected = sample();
    expected.getPTZOSDParamList().erase(expected.getPTZOSDParamList().begin());
    expected.getPTSpeedTable().setMagnifyPTSpeedParamList({magnify(10, {stage(14, 15, 16)})});
    PTZAbilityParam read;
    ASSERT_TRUE(PTZAbilityParamXml().parseXmlString(text, read));
    expectAbility(expected, read);
}

TEST(PTZAbilityParamXml, TakesWhatIsNoNumberForZero)
{
    PTZAbilityParam read;
    ASSERT_TRUE(
        PTZAbilityParamXml().parseXmlString(goldenWithout("tourMaxPresetNum=\"31\"", "tourMaxPresetNum=\"x\""), read));
    EXPECT_EQ(0, read.getTourAbilityParam().getTourMaxPresetNum());
}
