#include "analysis/IntelligenceAnalyseAbilityXml.h"

#include "core/ZTRuntimeError.h"
#include "tests/support/Documents.h"

#include <sstream>

namespace
{

/// The flags of the functions, each given out once, in the document's order.
class Flags
{
public:
    /// Those of the golden.
    Flags() = default;
    /// Bit @p bit of the number of each: with all bits, no two flags are alike throughout.
    explicit Flags(int bit) : bit_(bit) {}

    bool next()
    {
        const int number = number_++;
        return bit_ < 0 ? number % 3 != 2 : (number >> bit_ & 1) != 0;
    }

private:
    int bit_ = -1;
    int number_ = 0;
};

MotionDetectionAbilityV2 motionDetectionAbilityV2(Flags& flags)
{
    MotionDetectionAbilityV2 ability;
    ability.setEnable(flags.next());
    ability.setLibId(11);
    ability.setSensitivityEnable(flags.next());
    ability.setSensitivityMin(12);
    ability.setSensitivityMax(13);
    ability.setCellEnable(flags.next());
    ability.setCellWidthCellNumber(14);
    ability.setCellHeightCellNumber(15);
    return ability;
}

void expectMotionDetectionAbilityV2(const MotionDetectionAbilityV2& expected, const MotionDetectionAbilityV2& ability)
{
    EXPECT_EQ(expected.getEnable(), ability.getEnable());
    EXPECT_EQ(expected.getLibId(), ability.getLibId());
    EXPECT_EQ(expected.getSensitivityEnable(), ability.getSensitivityEnable());
    EXPECT_EQ(expected.getSensitivityMin(), ability.getSensitivityMin());
    EXPECT_EQ(expected.getSensitivityMax(), ability.getSensitivityMax());
    EXPECT_EQ(expected.getCellEnable(), ability.getCellEnable());
    EXPECT_EQ(expected.getCellWidthCellNumber(), ability.getCellWidthCellNumber());
    EXPECT_EQ(expected.getCellHeightCellNumber(), ability.getCellHeightCellNumber());
}

PerimeterAbility perimeterAbility(Flags& flags)
{
    PerimeterAbility ability;
    ability.setEnable(flags.next());
    ability.setLibId(16);
    ability.setRegionEnable(flags.next());
    ability.setEdgeNum(17);
    ability.setMaxRegionNum(18);
    ability.setDetailGetEnable(flags.next());
    ability.setTargetTypeConstrainEnable(flags.next());
    ability.setTargetTypeConstrainMin(19);
    ability.setTargetTypeConstrainMax(20);
    ability.setTargetTypeConstrainUnit("u21");
    ability.setTargetTypeEnable(flags.next());
    ability.setTargetTypeMin(22);
    ability.setTargetTypeMax(23);
    ability.setTargetTypeUnit("u24");
    ability.setTargetSizeConstrainEnable(flags.next());
    ability.setTargetSizeConstrainMin(25);
    ability.setTargetSizeConstrainMax(26);
    ability.setTargetSizeConstrainUnit("u27");
    ability.setMinTargetSizeEnable(flags.next());
    ability.setMinTargetSizeMin(28);
    ability.setMinTargetSizeMax(29);
    ability.setMinTargetSizeUnit("u30");
    ability.setMaxTargetSizeEnable(flags.next());
    ability.setMaxTargetSizeMin(31);
    ability.setMaxTargetSizeMax(32);
    ability.setMaxTargetSizeUnit("u33");
    ability.setSensitivityEnable(flags.next());
    ability.setSensitivityMin(34);
    ability.setSensitivityMax(35);
    return ability;
}

void expectPerimeterAbility(const PerimeterAbility& expected, const PerimeterAbility& ability)
{
    EXPECT_EQ(expected.getEnable(), ability.getEnable());
    EXPECT_EQ(expected.getLibId(), ability.getLibId());
    EXPECT_EQ(expected.getRegionEnable(), ability.getRegionEnable());
    EXPECT_EQ(expected.getEdgeNum(), ability.getEdgeNum());
    EXPECT_EQ(expected.getMaxRegionNum(), ability.getMaxRegionNum());
    EXPECT_EQ(expected.getDetailGetEnable(), ability.getDetailGetEnable());
    EXPECT_EQ(expected.getTargetTypeConstrainEnable(), ability.getTargetTypeConstrainEnable());
    EXPECT_EQ(expected.getTargetTypeConstrainMin(), ability.getTargetTypeConstrainMin());
    EXPECT_EQ(expected.getTargetTypeConstrainMax(), ability.getTargetTypeConstrainMax());
    EXPECT_EQ(expected.getTargetTypeConstrainUnit(), ability.getTargetTypeConstrainUnit());
    EXPECT_EQ(expected.getTargetTypeEnable(), ability.getTargetTypeEnable());
    EXPECT_EQ(expected.getTargetTypeMin(), ability.getTargetTypeMin());
    EXPECT_EQ(expected.getTargetTypeMax(), ability.getTargetTypeMax());
    EXPECT_EQ(expected.getTargetTypeUnit(), ability.getTargetTypeUnit());
    EXPECT_EQ(expected.getTargetSizeConstrainEnable(), ability.getTargetSizeConstrainEnable());
    EXPECT_EQ(expected.getTargetSizeConstrainMin(), ability.getTargetSizeConstrainMin());
    EXPECT_EQ(expected.getTargetSizeConstrainMax(), ability.getTargetSizeConstrainMax());
    EXPECT_EQ(expected.getTargetSizeConstrainUnit(), ability.getTargetSizeConstrainUnit());
    EXPECT_EQ(expected.getMinTargetSizeEnable(), ability.getMinTargetSizeEnable());
    EXPECT_EQ(expected.getMinTargetSizeMin(), ability.getMinTargetSizeMin());
    EXPECT_EQ(expected.getMinTargetSizeMax(), ability.getMinTargetSizeMax());
    EXPECT_EQ(expected.getMinTargetSizeUnit(), ability.getMinTargetSizeUnit());
    EXPECT_EQ(expected.getMaxTargetSizeEnable(), ability.getMaxTargetSizeEnable());
    EXPECT_EQ(expected.getMaxTargetSizeMin(), ability.getMaxTargetSizeMin());
    EXPECT_EQ(expected.getMaxTargetSizeMax(), ability.getMaxTargetSizeMax());
    EXPECT_EQ(expected.getMaxTargetSizeUnit(), ability.getMaxTargetSizeUnit());
    EXPECT_EQ(expected.getSensitivityEnable(), ability.getSensitivityEnable());
    EXPECT_EQ(expected.getSensitivityMin(), ability.getSensitivityMin());
    EXPECT_EQ(expected.getSensitivityMax(), ability.getSensitivityMax());
}

TripWireAbility tripWireAbility(Flags& flags)
{
    TripWireAbility ability;
    ability.setEnable(flags.next());
    ability.setLibId(36);
    ability.setRegionEnable(flags.next());
    ability.setEdgeNum(37);
    ability.setMaxRegionNum(38);
    ability.setDetailGetEnable(flags.next());
    ability.setTriggerDirectionEnable(flags.next());
    ability.setBidirectionEnable(flags.next());
    ability.setTargetTypeConstrainEnable(flags.next());
    ability.setTargetTypeConstrainMin(39);
    ability.setTargetTypeConstrainMax(40);
    ability.setTargetTypeConstrainUnit("u41");
    ability.setTargetTypeEnable(flags.next());
    ability.setTargetTypeMin(42);
    ability.setTargetTypeMax(43);
    ability.setTargetTypeUnit("u44");
    ability.setTargetSizeConstrainEnable(flags.next());
    ability.setTargetSizeConstrainMin(45);
    ability.setTargetSizeConstrainMax(46);
    ability.setTargetSizeConstrainUnit("u47");
    ability.setMinTargetSizeEnable(flags.next());
    ability.setMinTargetSizeMin(48);
    ability.setMinTargetSizeMax(49);
    ability.setMinTargetSizeUnit("u50");
    ability.setMaxTargetSizeEnable(flags.next());
    ability.setMaxTargetSizeMin(51);
    ability.setMaxTargetSizeMax(52);
    ability.setMaxTargetSizeUnit("u53");
    return ability;
}

void expectTripWireAbility(const TripWireAbility& expected, const TripWireAbility& ability)
{
    EXPECT_EQ(expected.getEnable(), ability.getEnable());
    EXPECT_EQ(expected.getLibId(), ability.getLibId());
    EXPECT_EQ(expected.getRegionEnable(), ability.getRegionEnable());
    EXPECT_EQ(expected.getEdgeNum(), ability.getEdgeNum());
    EXPECT_EQ(expected.getMaxRegionNum(), ability.getMaxRegionNum());
    EXPECT_EQ(expected.getDetailGetEnable(), ability.getDetailGetEnable());
    EXPECT_EQ(expected.getTriggerDirectionEnable(), ability.getTriggerDirectionEnable());
    EXPECT_EQ(expected.getBidirectionEnable(), ability.getBidirectionEnable());
    EXPECT_EQ(expected.getTargetTypeConstrainEnable(), ability.getTargetTypeConstrainEnable());
    EXPECT_EQ(expected.getTargetTypeConstrainMin(), ability.getTargetTypeConstrainMin());
    EXPECT_EQ(expected.getTargetTypeConstrainMax(), ability.getTargetTypeConstrainMax());
    EXPECT_EQ(expected.getTargetTypeConstrainUnit(), ability.getTargetTypeConstrainUnit());
    EXPECT_EQ(expected.getTargetTypeEnable(), ability.getTargetTypeEnable());
    EXPECT_EQ(expected.getTargetTypeMin(), ability.getTargetTypeMin());
    EXPECT_EQ(expected.getTargetTypeMax(), ability.getTargetTypeMax());
    EXPECT_EQ(expected.getTargetTypeUnit(), ability.getTargetTypeUnit());
    EXPECT_EQ(expected.getTargetSizeConstrainEnable(), ability.getTargetSizeConstrainEnable());
    EXPECT_EQ(expected.getTargetSizeConstrainMin(), ability.getTargetSizeConstrainMin());
    EXPECT_EQ(expected.getTargetSizeConstrainMax(), ability.getTargetSizeConstrainMax());
    EXPECT_EQ(expected.getTargetSizeConstrainUnit(), ability.getTargetSizeConstrainUnit());
    EXPECT_EQ(expected.getMinTargetSizeEnable(), ability.getMinTargetSizeEnable());
    EXPECT_EQ(expected.getMinTargetSizeMin(), ability.getMinTargetSizeMin());
    EXPECT_EQ(expected.getMinTargetSizeMax(), ability.getMinTargetSizeMax());
    EXPECT_EQ(expected.getMinTargetSizeUnit(), ability.getMinTargetSizeUnit());
    EXPECT_EQ(expected.getMaxTargetSizeEnable(), ability.getMaxTargetSizeEnable());
    EXPECT_EQ(expected.getMaxTargetSizeMin(), ability.getMaxTargetSizeMin());
    EXPECT_EQ(expected.getMaxTargetSizeMax(), ability.getMaxTargetSizeMax());
    EXPECT_EQ(expected.getMaxTargetSizeUnit(), ability.getMaxTargetSizeUnit());
}

MultiTripWireAbility multiTripWireAbility(Flags& flags)
{
    MultiTripWireAbility ability;
    ability.setEnable(flags.next());
    ability.setLibId(54);
    ability.setRegionEnable(flags.next());
    ability.setEdgeNum(55);
    ability.setMaxRegionNum(56);
    ability.setDetailGetEnable(flags.next());
    ability.setTriggerDirectionEnable(flags.next());
    ability.setTimeIntervalEnable(flags.next());
    ability.setTimeIntervalMin(57);
    ability.setTimeIntervalMax(58);
    ability.setTimeIntervalUnit("u59");
    ability.setTargetTypeConstrainEnable(flags.next());
    ability.setTargetTypeConstrainMin(60);
    ability.setTargetTypeConstrainMax(61);
    ability.setTargetTypeConstrainUnit("u62");
    ability.setTargetTypeEnable(flags.next());
    ability.setTargetTypeMin(63);
    ability.setTargetTypeMax(64);
    ability.setTargetTypeUnit("u65");
    ability.setTargetSizeConstrainEnable(flags.next());
    ability.setTargetSizeConstrainMin(66);
    ability.setTargetSizeConstrainMax(67);
    ability.setTargetSizeConstrainUnit("u68");
    ability.setMinTargetSizeEnable(flags.next());
    ability.setMinTargetSizeMin(69);
    ability.setMinTargetSizeMax(70);
    ability.setMinTargetSizeUnit("u71");
    ability.setMaxTargetSizeEnable(flags.next());
    ability.setMaxTargetSizeMin(72);
    ability.setMaxTargetSizeMax(73);
    ability.setMaxTargetSizeUnit("u74");
    return ability;
}

void expectMultiTripWireAbility(const MultiTripWireAbility& expected, const MultiTripWireAbility& ability)
{
    EXPECT_EQ(expected.getEnable(), ability.getEnable());
    EXPECT_EQ(expected.getLibId(), ability.getLibId());
    EXPECT_EQ(expected.getRegionEnable(), ability.getRegionEnable());
    EXPECT_EQ(expected.getEdgeNum(), ability.getEdgeNum());
    EXPECT_EQ(expected.getMaxRegionNum(), ability.getMaxRegionNum());
    EXPECT_EQ(expected.getDetailGetEnable(), ability.getDetailGetEnable());
    EXPECT_EQ(expected.getTriggerDirectionEnable(), ability.getTriggerDirectionEnable());
    EXPECT_EQ(expected.getTimeIntervalEnable(), ability.getTimeIntervalEnable());
    EXPECT_EQ(expected.getTimeIntervalMin(), ability.getTimeIntervalMin());
    EXPECT_EQ(expected.getTimeIntervalMax(), ability.getTimeIntervalMax());
    EXPECT_EQ(expected.getTimeIntervalUnit(), ability.getTimeIntervalUnit());
    EXPECT_EQ(expected.getTargetTypeConstrainEnable(), ability.getTargetTypeConstrainEnable());
    EXPECT_EQ(expected.getTargetTypeConstrainMin(), ability.getTargetTypeConstrainMin());
    EXPECT_EQ(expected.getTargetTypeConstrainMax(), ability.getTargetTypeConstrainMax());
    EXPECT_EQ(expected.getTargetTypeConstrainUnit(), ability.getTargetTypeConstrainUnit());
    EXPECT_EQ(expected.getTargetTypeEnable(), ability.getTargetTypeEnable());
    EXPECT_EQ(expected.getTargetTypeMin(), ability.getTargetTypeMin());
    EXPECT_EQ(expected.getTargetTypeMax(), ability.getTargetTypeMax());
    EXPECT_EQ(expected.getTargetTypeUnit(), ability.getTargetTypeUnit());
    EXPECT_EQ(expected.getTargetSizeConstrainEnable(), ability.getTargetSizeConstrainEnable());
    EXPECT_EQ(expected.getTargetSizeConstrainMin(), ability.getTargetSizeConstrainMin());
    EXPECT_EQ(expected.getTargetSizeConstrainMax(), ability.getTargetSizeConstrainMax());
    EXPECT_EQ(expected.getTargetSizeConstrainUnit(), ability.getTargetSizeConstrainUnit());
    EXPECT_EQ(expected.getMinTargetSizeEnable(), ability.getMinTargetSizeEnable());
    EXPECT_EQ(expected.getMinTargetSizeMin(), ability.getMinTargetSizeMin());
    EXPECT_EQ(expected.getMinTargetSizeMax(), ability.getMinTargetSizeMax());
    EXPECT_EQ(expected.getMinTargetSizeUnit(), ability.getMinTargetSizeUnit());
    EXPECT_EQ(expected.getMaxTargetSizeEnable(), ability.getMaxTargetSizeEnable());
    EXPECT_EQ(expected.getMaxTargetSizeMin(), ability.getMaxTargetSizeMin());
    EXPECT_EQ(expected.getMaxTargetSizeMax(), ability.getMaxTargetSizeMax());
    EXPECT_EQ(expected.getMaxTargetSizeUnit(), ability.getMaxTargetSizeUnit());
}

LoiterAbility loiterAbility(Flags& flags)
{
    LoiterAbility ability;
    ability.setEnable(flags.next());
    ability.setLibId(75);
    ability.setRegionEnable(flags.next());
    ability.setEdgeNum(76);
    ability.setMaxRegionNum(77);
    ability.setDetailGetEnable(flags.next());
    ability.setAnalysisPathEnable(flags.next());
    ability.setAnalysisPathMin(78);
    ability.setAnalysisPathMax(79);
    ability.setAnalysisPathUnit("u80");
    ability.setTargetTypeConstrainEnable(flags.next());
    ability.setTargetTypeConstrainMin(81);
    ability.setTargetTypeConstrainMax(82);
    ability.setTargetTypeConstrainUnit("u83");
    ability.setTargetTypeEnable(flags.next());
    ability.setTargetTypeMin(84);
    ability.setTargetTypeMax(85);
    ability.setTargetTypeUnit("u86");
    ability.setTargetSizeConstrainEnable(flags.next());
    ability.setTargetSizeConstrainMin(87);
    ability.setTargetSizeConstrainMax(88);
    ability.setTargetSizeConstrainUnit("u89");
    ability.setMinTargetSizeEnable(flags.next());
    ability.setMinTargetSizeMin(90);
    ability.setMinTargetSizeMax(91);
    ability.setMinTargetSizeUnit("u92");
    ability.setMaxTargetSizeEnable(flags.next());
    ability.setMaxTargetSizeMin(93);
    ability.setMaxTargetSizeMax(94);
    ability.setMaxTargetSizeUnit("u95");
    ability.setMinTimeEnable(flags.next());
    ability.setMinTimeMin(96);
    ability.setMinTimeMax(97);
    ability.setMinTimeUnit("u98");
    return ability;
}

void expectLoiterAbility(const LoiterAbility& expected, const LoiterAbility& ability)
{
    EXPECT_EQ(expected.getEnable(), ability.getEnable());
    EXPECT_EQ(expected.getLibId(), ability.getLibId());
    EXPECT_EQ(expected.getRegionEnable(), ability.getRegionEnable());
    EXPECT_EQ(expected.getEdgeNum(), ability.getEdgeNum());
    EXPECT_EQ(expected.getMaxRegionNum(), ability.getMaxRegionNum());
    EXPECT_EQ(expected.getDetailGetEnable(), ability.getDetailGetEnable());
    EXPECT_EQ(expected.getAnalysisPathEnable(), ability.getAnalysisPathEnable());
    EXPECT_EQ(expected.getAnalysisPathMin(), ability.getAnalysisPathMin());
    EXPECT_EQ(expected.getAnalysisPathMax(), ability.getAnalysisPathMax());
    EXPECT_EQ(expected.getAnalysisPathUnit(), ability.getAnalysisPathUnit());
    EXPECT_EQ(expected.getTargetTypeConstrainEnable(), ability.getTargetTypeConstrainEnable());
    EXPECT_EQ(expected.getTargetTypeConstrainMin(), ability.getTargetTypeConstrainMin());
    EXPECT_EQ(expected.getTargetTypeConstrainMax(), ability.getTargetTypeConstrainMax());
    EXPECT_EQ(expected.getTargetTypeConstrainUnit(), ability.getTargetTypeConstrainUnit());
    EXPECT_EQ(expected.getTargetTypeEnable(), ability.getTargetTypeEnable());
    EXPECT_EQ(expected.getTargetTypeMin(), ability.getTargetTypeMin());
    EXPECT_EQ(expected.getTargetTypeMax(), ability.getTargetTypeMax());
    EXPECT_EQ(expected.getTargetTypeUnit(), ability.getTargetTypeUnit());
    EXPECT_EQ(expected.getTargetSizeConstrainEnable(), ability.getTargetSizeConstrainEnable());
    EXPECT_EQ(expected.getTargetSizeConstrainMin(), ability.getTargetSizeConstrainMin());
    EXPECT_EQ(expected.getTargetSizeConstrainMax(), ability.getTargetSizeConstrainMax());
    EXPECT_EQ(expected.getTargetSizeConstrainUnit(), ability.getTargetSizeConstrainUnit());
    EXPECT_EQ(expected.getMinTargetSizeEnable(), ability.getMinTargetSizeEnable());
    EXPECT_EQ(expected.getMinTargetSizeMin(), ability.getMinTargetSizeMin());
    EXPECT_EQ(expected.getMinTargetSizeMax(), ability.getMinTargetSizeMax());
    EXPECT_EQ(expected.getMinTargetSizeUnit(), ability.getMinTargetSizeUnit());
    EXPECT_EQ(expected.getMaxTargetSizeEnable(), ability.getMaxTargetSizeEnable());
    EXPECT_EQ(expected.getMaxTargetSizeMin(), ability.getMaxTargetSizeMin());
    EXPECT_EQ(expected.getMaxTargetSizeMax(), ability.getMaxTargetSizeMax());
    EXPECT_EQ(expected.getMaxTargetSizeUnit(), ability.getMaxTargetSizeUnit());
    EXPECT_EQ(expected.getMinTimeEnable(), ability.getMinTimeEnable());
    EXPECT_EQ(expected.getMinTimeMin(), ability.getMinTimeMin());
    EXPECT_EQ(expected.getMinTimeMax(), ability.getMinTimeMax());
    EXPECT_EQ(expected.getMinTimeUnit(), ability.getMinTimeUnit());
}

MultiLoiterAbility multiLoiterAbility(Flags& flags)
{
    MultiLoiterAbility ability;
    ability.setEnable(flags.next());
    ability.setLibId(99);
    ability.setRegionEnable(flags.next());
    ability.setEdgeNum(100);
    ability.setMaxRegionNum(101);
    ability.setDetailGetEnable(flags.next());
    ability.setAnalysisPathEnable(flags.next());
    ability.setAnalysisPathMin(102);
    ability.setAnalysisPathMax(103);
    ability.setAnalysisPathUnit("u104");
    ability.setTargetSizeConstrainEnable(flags.next());
    ability.setTargetSizeConstrainMin(105);
    ability.setTargetSizeConstrainMax(106);
    ability.setTargetSizeConstrainUnit("u107");
    ability.setMinTargetSizeEnable(flags.next());
    ability.setMinTargetSizeMin(108);
    ability.setMinTargetSizeMax(109);
    ability.setMinTargetSizeUnit("u110");
    ability.setMaxTargetSizeEnable(flags.next());
    ability.setMaxTargetSizeMin(111);
    ability.setMaxTargetSizeMax(112);
    ability.setMaxTargetSizeUnit("u113");
    ability.setMinTimeEnable(flags.next());
    ability.setMinTimeMin(114);
    ability.setMinTimeMax(115);
    ability.setMinTimeUnit("u116");
    ability.setForbiddenTypeEnable(flags.next());
    ability.setMinimumEnable(flags.next());
    ability.setMinimumMin(117);
    ability.setMinimumMax(118);
    ability.setMinimumUnit("u119");
    ability.setMaximumEnable(flags.next());
    ability.setMaximumMin(120);
    ability.setMaximumMax(121);
    ability.setMaximumUnit("u122");
    return ability;
}

void expectMultiLoiterAbility(const MultiLoiterAbility& expected, const MultiLoiterAbility& ability)
{
    EXPECT_EQ(expected.getEnable(), ability.getEnable());
    EXPECT_EQ(expected.getLibId(), ability.getLibId());
    EXPECT_EQ(expected.getRegionEnable(), ability.getRegionEnable());
    EXPECT_EQ(expected.getEdgeNum(), ability.getEdgeNum());
    EXPECT_EQ(expected.getMaxRegionNum(), ability.getMaxRegionNum());
    EXPECT_EQ(expected.getDetailGetEnable(), ability.getDetailGetEnable());
    EXPECT_EQ(expected.getAnalysisPathEnable(), ability.getAnalysisPathEnable());
    EXPECT_EQ(expected.getAnalysisPathMin(), ability.getAnalysisPathMin());
    EXPECT_EQ(expected.getAnalysisPathMax(), ability.getAnalysisPathMax());
    EXPECT_EQ(expected.getAnalysisPathUnit(), ability.getAnalysisPathUnit());
    EXPECT_EQ(expected.getTargetSizeConstrainEnable(), ability.getTargetSizeConstrainEnable());
    EXPECT_EQ(expected.getTargetSizeConstrainMin(), ability.getTargetSizeConstrainMin());
    EXPECT_EQ(expected.getTargetSizeConstrainMax(), ability.getTargetSizeConstrainMax());
    EXPECT_EQ(expected.getTargetSizeConstrainUnit(), ability.getTargetSizeConstrainUnit());
    EXPECT_EQ(expected.getMinTargetSizeEnable(), ability.getMinTargetSizeEnable());
    EXPECT_EQ(expected.getMinTargetSizeMin(), ability.getMinTargetSizeMin());
    EXPECT_EQ(expected.getMinTargetSizeMax(), ability.getMinTargetSizeMax());
    EXPECT_EQ(expected.getMinTargetSizeUnit(), ability.getMinTargetSizeUnit());
    EXPECT_EQ(expected.getMaxTargetSizeEnable(), ability.getMaxTargetSizeEnable());
    EXPECT_EQ(expected.getMaxTargetSizeMin(), ability.getMaxTargetSizeMin());
    EXPECT_EQ(expected.getMaxTargetSizeMax(), ability.getMaxTargetSizeMax());
    EXPECT_EQ(expected.getMaxTargetSizeUnit(), ability.getMaxTargetSizeUnit());
    EXPECT_EQ(expected.getMinTimeEnable(), ability.getMinTimeEnable());
    EXPECT_EQ(expected.getMinTimeMin(), ability.getMinTimeMin());
    EXPECT_EQ(expected.getMinTimeMax(), ability.getMinTimeMax());
    EXPECT_EQ(expected.getMinTimeUnit(), ability.getMinTimeUnit());
    EXPECT_EQ(expected.getForbiddenTypeEnable(), ability.getForbiddenTypeEnable());
    EXPECT_EQ(expected.getMinimumEnable(), ability.getMinimumEnable());
    EXPECT_EQ(expected.getMinimumMin(), ability.getMinimumMin());
    EXPECT_EQ(expected.getMinimumMax(), ability.getMinimumMax());
    EXPECT_EQ(expected.getMinimumUnit(), ability.getMinimumUnit());
    EXPECT_EQ(expected.getMaximumEnable(), ability.getMaximumEnable());
    EXPECT_EQ(expected.getMaximumMin(), ability.getMaximumMin());
    EXPECT_EQ(expected.getMaximumMax(), ability.getMaximumMax());
    EXPECT_EQ(expected.getMaximumUnit(), ability.getMaximumUnit());
}

ObjLeftAbility objLeftAbility(Flags& flags)
{
    ObjLeftAbility ability;
    ability.setEnable(flags.next());
    ability.setLibId(123);
    ability.setRegionEnable(flags.next());
    ability.setEdgeNum(124);
    ability.setMaxRegionNum(125);
    ability.setDetailGetEnable(flags.next());
    ability.setMinTargetSizeEnable(flags.next());
    ability.setMinTargetSizeMin(126);
    ability.setMinTargetSizeMax(127);
    ability.setMinTargetSizeUnit("u128");
    ability.setMaxTargetSizeEnable(flags.next());
    ability.setMaxTargetSizeMin(129);
    ability.setMaxTargetSizeMax(130);
    ability.setMaxTargetSizeUnit("u131");
    ability.setMinTimeEnable(flags.next());
    ability.setMinTimeMin(132);
    ability.setMinTimeMax(133);
    ability.setMinTimeUnit("u134");
    return ability;
}

void expectObjLeftAbility(const ObjLeftAbility& expected, const ObjLeftAbility& ability)
{
    EXPECT_EQ(expected.getEnable(), ability.getEnable());
    EXPECT_EQ(expected.getLibId(), ability.getLibId());
    EXPECT_EQ(expected.getRegionEnable(), ability.getRegionEnable());
    EXPECT_EQ(expected.getEdgeNum(), ability.getEdgeNum());
    EXPECT_EQ(expected.getMaxRegionNum(), ability.getMaxRegionNum());
    EXPECT_EQ(expected.getDetailGetEnable(), ability.getDetailGetEnable());
    EXPECT_EQ(expected.getMinTargetSizeEnable(), ability.getMinTargetSizeEnable());
    EXPECT_EQ(expected.getMinTargetSizeMin(), ability.getMinTargetSizeMin());
    EXPECT_EQ(expected.getMinTargetSizeMax(), ability.getMinTargetSizeMax());
    EXPECT_EQ(expected.getMinTargetSizeUnit(), ability.getMinTargetSizeUnit());
    EXPECT_EQ(expected.getMaxTargetSizeEnable(), ability.getMaxTargetSizeEnable());
    EXPECT_EQ(expected.getMaxTargetSizeMin(), ability.getMaxTargetSizeMin());
    EXPECT_EQ(expected.getMaxTargetSizeMax(), ability.getMaxTargetSizeMax());
    EXPECT_EQ(expected.getMaxTargetSizeUnit(), ability.getMaxTargetSizeUnit());
    EXPECT_EQ(expected.getMinTimeEnable(), ability.getMinTimeEnable());
    EXPECT_EQ(expected.getMinTimeMin(), ability.getMinTimeMin());
    EXPECT_EQ(expected.getMinTimeMax(), ability.getMinTimeMax());
    EXPECT_EQ(expected.getMinTimeUnit(), ability.getMinTimeUnit());
}

ObjMoveAbility objMoveAbility(Flags& flags)
{
    ObjMoveAbility ability;
    ability.setEnable(flags.next());
    ability.setLibId(135);
    ability.setRegionEnable(flags.next());
    ability.setEdgeNum(136);
    ability.setMaxRegionNum(137);
    ability.setDetailGetEnable(flags.next());
    ability.setMinTargetSizeEnable(flags.next());
    ability.setMinTargetSizeMin(138);
    ability.setMinTargetSizeMax(139);
    ability.setMinTargetSizeUnit("u140");
    ability.setMaxTargetSizeEnable(flags.next());
    ability.setMaxTargetSizeMin(141);
    ability.setMaxTargetSizeMax(142);
    ability.setMaxTargetSizeUnit("u143");
    ability.setMinTimeEnable(flags.next());
    ability.setMinTimeMin(144);
    ability.setMinTimeMax(145);
    ability.setMinTimeUnit("u146");
    return ability;
}

void expectObjMoveAbility(const ObjMoveAbility& expected, const ObjMoveAbility& ability)
{
    EXPECT_EQ(expected.getEnable(), ability.getEnable());
    EXPECT_EQ(expected.getLibId(), ability.getLibId());
    EXPECT_EQ(expected.getRegionEnable(), ability.getRegionEnable());
    EXPECT_EQ(expected.getEdgeNum(), ability.getEdgeNum());
    EXPECT_EQ(expected.getMaxRegionNum(), ability.getMaxRegionNum());
    EXPECT_EQ(expected.getDetailGetEnable(), ability.getDetailGetEnable());
    EXPECT_EQ(expected.getMinTargetSizeEnable(), ability.getMinTargetSizeEnable());
    EXPECT_EQ(expected.getMinTargetSizeMin(), ability.getMinTargetSizeMin());
    EXPECT_EQ(expected.getMinTargetSizeMax(), ability.getMinTargetSizeMax());
    EXPECT_EQ(expected.getMinTargetSizeUnit(), ability.getMinTargetSizeUnit());
    EXPECT_EQ(expected.getMaxTargetSizeEnable(), ability.getMaxTargetSizeEnable());
    EXPECT_EQ(expected.getMaxTargetSizeMin(), ability.getMaxTargetSizeMin());
    EXPECT_EQ(expected.getMaxTargetSizeMax(), ability.getMaxTargetSizeMax());
    EXPECT_EQ(expected.getMaxTargetSizeUnit(), ability.getMaxTargetSizeUnit());
    EXPECT_EQ(expected.getMinTimeEnable(), ability.getMinTimeEnable());
    EXPECT_EQ(expected.getMinTimeMin(), ability.getMinTimeMin());
    EXPECT_EQ(expected.getMinTimeMax(), ability.getMinTimeMax());
    EXPECT_EQ(expected.getMinTimeUnit(), ability.getMinTimeUnit());
}

AbnormalSpeedAbility abnormalSpeedAbility(Flags& flags)
{
    AbnormalSpeedAbility ability;
    ability.setEnable(flags.next());
    ability.setLibId(147);
    ability.setRegionEnable(flags.next());
    ability.setEdgeNum(148);
    ability.setMaxRegionNum(149);
    ability.setDetailGetEnable(flags.next());
    ability.setTargetTypeConstrainEnable(flags.next());
    ability.setTargetTypeConstrainMin(150);
    ability.setTargetTypeConstrainMax(151);
    ability.setTargetTypeConstrainUnit("u152");
    ability.setTargetTypeEnable(flags.next());
    ability.setTargetTypeMin(153);
    ability.setTargetTypeMax(154);
    ability.setTargetTypeUnit("u155");
    ability.setTargetSizeConstrainEnable(flags.next());
    ability.setTargetSizeConstrainMin(156);
    ability.setTargetSizeConstrainMax(157);
    ability.setTargetSizeConstrainUnit("u158");
    ability.setMinTargetSizeEnable(flags.next());
    ability.setMinTargetSizeMin(159);
    ability.setMinTargetSizeMax(160);
    ability.setMinTargetSizeUnit("u161");
    ability.setMaxTargetSizeEnable(flags.next());
    ability.setMaxTargetSizeMin(162);
    ability.setMaxTargetSizeMax(163);
    ability.setMaxTargetSizeUnit("u164");
    ability.setRateLimitingTypeEnable(flags.next());
    ability.setRateLimitingTypeMin(165);
    ability.setRateLimitingTypeMax(166);
    ability.setRateLimitingTypeUnit("u167");
    ability.setMinRateEnable(flags.next());
    ability.setMinRateMin(168);
    ability.setMinRateMax(169);
    ability.setMinRateUnit("u170");
    ability.setMaxRateEnable(flags.next());
    ability.setMaxRateMin(171);
    ability.setMaxRateMax(172);
    ability.setMaxRateUnit("u173");
    return ability;
}

void expectAbnormalSpeedAbility(const AbnormalSpeedAbility& expected, const AbnormalSpeedAbility& ability)
{
    EXPECT_EQ(expected.getEnable(), ability.getEnable());
    EXPECT_EQ(expected.getLibId(), ability.getLibId());
    EXPECT_EQ(expected.getRegionEnable(), ability.getRegionEnable());
    EXPECT_EQ(expected.getEdgeNum(), ability.getEdgeNum());
    EXPECT_EQ(expected.getMaxRegionNum(), ability.getMaxRegionNum());
    EXPECT_EQ(expected.getDetailGetEnable(), ability.getDetailGetEnable());
    EXPECT_EQ(expected.getTargetTypeConstrainEnable(), ability.getTargetTypeConstrainEnable());
    EXPECT_EQ(expected.getTargetTypeConstrainMin(), ability.getTargetTypeConstrainMin());
    EXPECT_EQ(expected.getTargetTypeConstrainMax(), ability.getTargetTypeConstrainMax());
    EXPECT_EQ(expected.getTargetTypeConstrainUnit(), ability.getTargetTypeConstrainUnit());
    EXPECT_EQ(expected.getTargetTypeEnable(), ability.getTargetTypeEnable());
    EXPECT_EQ(expected.getTargetTypeMin(), ability.getTargetTypeMin());
    EXPECT_EQ(expected.getTargetTypeMax(), ability.getTargetTypeMax());
    EXPECT_EQ(expected.getTargetTypeUnit(), ability.getTargetTypeUnit());
    EXPECT_EQ(expected.getTargetSizeConstrainEnable(), ability.getTargetSizeConstrainEnable());
    EXPECT_EQ(expected.getTargetSizeConstrainMin(), ability.getTargetSizeConstrainMin());
    EXPECT_EQ(expected.getTargetSizeConstrainMax(), ability.getTargetSizeConstrainMax());
    EXPECT_EQ(expected.getTargetSizeConstrainUnit(), ability.getTargetSizeConstrainUnit());
    EXPECT_EQ(expected.getMinTargetSizeEnable(), ability.getMinTargetSizeEnable());
    EXPECT_EQ(expected.getMinTargetSizeMin(), ability.getMinTargetSizeMin());
    EXPECT_EQ(expected.getMinTargetSizeMax(), ability.getMinTargetSizeMax());
    EXPECT_EQ(expected.getMinTargetSizeUnit(), ability.getMinTargetSizeUnit());
    EXPECT_EQ(expected.getMaxTargetSizeEnable(), ability.getMaxTargetSizeEnable());
    EXPECT_EQ(expected.getMaxTargetSizeMin(), ability.getMaxTargetSizeMin());
    EXPECT_EQ(expected.getMaxTargetSizeMax(), ability.getMaxTargetSizeMax());
    EXPECT_EQ(expected.getMaxTargetSizeUnit(), ability.getMaxTargetSizeUnit());
    EXPECT_EQ(expected.getRateLimitingTypeEnable(), ability.getRateLimitingTypeEnable());
    EXPECT_EQ(expected.getRateLimitingTypeMin(), ability.getRateLimitingTypeMin());
    EXPECT_EQ(expected.getRateLimitingTypeMax(), ability.getRateLimitingTypeMax());
    EXPECT_EQ(expected.getRateLimitingTypeUnit(), ability.getRateLimitingTypeUnit());
    EXPECT_EQ(expected.getMinRateEnable(), ability.getMinRateEnable());
    EXPECT_EQ(expected.getMinRateMin(), ability.getMinRateMin());
    EXPECT_EQ(expected.getMinRateMax(), ability.getMinRateMax());
    EXPECT_EQ(expected.getMinRateUnit(), ability.getMinRateUnit());
    EXPECT_EQ(expected.getMaxRateEnable(), ability.getMaxRateEnable());
    EXPECT_EQ(expected.getMaxRateMin(), ability.getMaxRateMin());
    EXPECT_EQ(expected.getMaxRateMax(), ability.getMaxRateMax());
    EXPECT_EQ(expected.getMaxRateUnit(), ability.getMaxRateUnit());
}

ConverseAbility converseAbility(Flags& flags)
{
    ConverseAbility ability;
    ability.setEnable(flags.next());
    ability.setLibId(174);
    ability.setRegionEnable(flags.next());
    ability.setEdgeNum(175);
    ability.setMaxRegionNum(176);
    ability.setDetailGetEnable(flags.next());
    ability.setTargetTypeConstrainEnable(flags.next());
    ability.setTargetTypeConstrainMin(177);
    ability.setTargetTypeConstrainMax(178);
    ability.setTargetTypeConstrainUnit("u179");
    ability.setTargetTypeEnable(flags.next());
    ability.setTargetTypeMin(180);
    ability.setTargetTypeMax(181);
    ability.setTargetTypeUnit("u182");
    ability.setTargetSizeConstrainEnable(flags.next());
    ability.setTargetSizeConstrainMin(183);
    ability.setTargetSizeConstrainMax(184);
    ability.setTargetSizeConstrainUnit("u185");
    ability.setMinTargetSizeEnable(flags.next());
    ability.setMinTargetSizeMin(186);
    ability.setMinTargetSizeMax(187);
    ability.setMinTargetSizeUnit("u188");
    ability.setMaxTargetSizeEnable(flags.next());
    ability.setMaxTargetSizeMin(189);
    ability.setMaxTargetSizeMax(190);
    ability.setMaxTargetSizeUnit("u191");
    ability.setConverseAngleEnable(flags.next());
    ability.setConverseAngleMin(0.5F);
    ability.setConverseAngleMax(89.75F);
    ability.setConverseAngleUnit("u192");
    return ability;
}

void expectConverseAbility(const ConverseAbility& expected, const ConverseAbility& ability)
{
    EXPECT_EQ(expected.getEnable(), ability.getEnable());
    EXPECT_EQ(expected.getLibId(), ability.getLibId());
    EXPECT_EQ(expected.getRegionEnable(), ability.getRegionEnable());
    EXPECT_EQ(expected.getEdgeNum(), ability.getEdgeNum());
    EXPECT_EQ(expected.getMaxRegionNum(), ability.getMaxRegionNum());
    EXPECT_EQ(expected.getDetailGetEnable(), ability.getDetailGetEnable());
    EXPECT_EQ(expected.getTargetTypeConstrainEnable(), ability.getTargetTypeConstrainEnable());
    EXPECT_EQ(expected.getTargetTypeConstrainMin(), ability.getTargetTypeConstrainMin());
    EXPECT_EQ(expected.getTargetTypeConstrainMax(), ability.getTargetTypeConstrainMax());
    EXPECT_EQ(expected.getTargetTypeConstrainUnit(), ability.getTargetTypeConstrainUnit());
    EXPECT_EQ(expected.getTargetTypeEnable(), ability.getTargetTypeEnable());
    EXPECT_EQ(expected.getTargetTypeMin(), ability.getTargetTypeMin());
    EXPECT_EQ(expected.getTargetTypeMax(), ability.getTargetTypeMax());
    EXPECT_EQ(expected.getTargetTypeUnit(), ability.getTargetTypeUnit());
    EXPECT_EQ(expected.getTargetSizeConstrainEnable(), ability.getTargetSizeConstrainEnable());
    EXPECT_EQ(expected.getTargetSizeConstrainMin(), ability.getTargetSizeConstrainMin());
    EXPECT_EQ(expected.getTargetSizeConstrainMax(), ability.getTargetSizeConstrainMax());
    EXPECT_EQ(expected.getTargetSizeConstrainUnit(), ability.getTargetSizeConstrainUnit());
    EXPECT_EQ(expected.getMinTargetSizeEnable(), ability.getMinTargetSizeEnable());
    EXPECT_EQ(expected.getMinTargetSizeMin(), ability.getMinTargetSizeMin());
    EXPECT_EQ(expected.getMinTargetSizeMax(), ability.getMinTargetSizeMax());
    EXPECT_EQ(expected.getMinTargetSizeUnit(), ability.getMinTargetSizeUnit());
    EXPECT_EQ(expected.getMaxTargetSizeEnable(), ability.getMaxTargetSizeEnable());
    EXPECT_EQ(expected.getMaxTargetSizeMin(), ability.getMaxTargetSizeMin());
    EXPECT_EQ(expected.getMaxTargetSizeMax(), ability.getMaxTargetSizeMax());
    EXPECT_EQ(expected.getMaxTargetSizeUnit(), ability.getMaxTargetSizeUnit());
    EXPECT_EQ(expected.getConverseAngleEnable(), ability.getConverseAngleEnable());
    EXPECT_EQ(expected.getConverseAngleMin(), ability.getConverseAngleMin());
    EXPECT_EQ(expected.getConverseAngleMax(), ability.getConverseAngleMax());
    EXPECT_EQ(expected.getConverseAngleUnit(), ability.getConverseAngleUnit());
}

NoParkingAbility noParkingAbility(Flags& flags)
{
    NoParkingAbility ability;
    ability.setEnable(flags.next());
    ability.setLibId(193);
    ability.setRegionEnable(flags.next());
    ability.setEdgeNum(194);
    ability.setMaxRegionNum(195);
    ability.setDetailGetEnable(flags.next());
    ability.setMinTargetSizeEnable(flags.next());
    ability.setMinTargetSizeMin(196);
    ability.setMinTargetSizeMax(197);
    ability.setMinTargetSizeUnit("u198");
    ability.setMaxTargetSizeEnable(flags.next());
    ability.setMaxTargetSizeMin(199);
    ability.setMaxTargetSizeMax(200);
    ability.setMaxTargetSizeUnit("u201");
    ability.setMinTimeEnable(flags.next());
    ability.setMinTimeMin(202);
    ability.setMinTimeMax(203);
    ability.setMinTimeUnit("u204");
    return ability;
}

void expectNoParkingAbility(const NoParkingAbility& expected, const NoParkingAbility& ability)
{
    EXPECT_EQ(expected.getEnable(), ability.getEnable());
    EXPECT_EQ(expected.getLibId(), ability.getLibId());
    EXPECT_EQ(expected.getRegionEnable(), ability.getRegionEnable());
    EXPECT_EQ(expected.getEdgeNum(), ability.getEdgeNum());
    EXPECT_EQ(expected.getMaxRegionNum(), ability.getMaxRegionNum());
    EXPECT_EQ(expected.getDetailGetEnable(), ability.getDetailGetEnable());
    EXPECT_EQ(expected.getMinTargetSizeEnable(), ability.getMinTargetSizeEnable());
    EXPECT_EQ(expected.getMinTargetSizeMin(), ability.getMinTargetSizeMin());
    EXPECT_EQ(expected.getMinTargetSizeMax(), ability.getMinTargetSizeMax());
    EXPECT_EQ(expected.getMinTargetSizeUnit(), ability.getMinTargetSizeUnit());
    EXPECT_EQ(expected.getMaxTargetSizeEnable(), ability.getMaxTargetSizeEnable());
    EXPECT_EQ(expected.getMaxTargetSizeMin(), ability.getMaxTargetSizeMin());
    EXPECT_EQ(expected.getMaxTargetSizeMax(), ability.getMaxTargetSizeMax());
    EXPECT_EQ(expected.getMaxTargetSizeUnit(), ability.getMaxTargetSizeUnit());
    EXPECT_EQ(expected.getMinTimeEnable(), ability.getMinTimeEnable());
    EXPECT_EQ(expected.getMinTimeMin(), ability.getMinTimeMin());
    EXPECT_EQ(expected.getMinTimeMax(), ability.getMinTimeMax());
    EXPECT_EQ(expected.getMinTimeUnit(), ability.getMinTimeUnit());
}

SignalBadAbility signalBadAbility(Flags& flags)
{
    SignalBadAbility ability;
    ability.setEnable(flags.next());
    ability.setLibId(205);
    ability.setDetailGet(flags.next());
    return ability;
}

void expectSignalBadAbility(const SignalBadAbility& expected, const SignalBadAbility& ability)
{
    EXPECT_EQ(expected.getEnable(), ability.getEnable());
    EXPECT_EQ(expected.getLibId(), ability.getLibId());
    EXPECT_EQ(expected.getDetailGet(), ability.getDetailGet());
}

CameraTamperAbility cameraTamperAbility(Flags& flags)
{
    CameraTamperAbility ability;
    ability.setEnable(flags.next());
    ability.setLibId(206);
    ability.setMinTimeEnable(flags.next());
    ability.setMinTimeMin(207);
    ability.setMinTimeMax(208);
    ability.setMinTimeUnit("u209");
    return ability;
}

void expectCameraTamperAbility(const CameraTamperAbility& expected, const CameraTamperAbility& ability)
{
    EXPECT_EQ(expected.getEnable(), ability.getEnable());
    EXPECT_EQ(expected.getLibId(), ability.getLibId());
    EXPECT_EQ(expected.getMinTimeEnable(), ability.getMinTimeEnable());
    EXPECT_EQ(expected.getMinTimeMin(), ability.getMinTimeMin());
    EXPECT_EQ(expected.getMinTimeMax(), ability.getMinTimeMax());
    EXPECT_EQ(expected.getMinTimeUnit(), ability.getMinTimeUnit());
}

CameraMoveAbility cameraMoveAbility(Flags& flags)
{
    CameraMoveAbility ability;
    ability.setEnable(flags.next());
    ability.setLibId(210);
    return ability;
}

void expectCameraMoveAbility(const CameraMoveAbility& expected, const CameraMoveAbility& ability)
{
    EXPECT_EQ(expected.getEnable(), ability.getEnable());
    EXPECT_EQ(expected.getLibId(), ability.getLibId());
}

AdvancedAbility advancedAbility(Flags& flags)
{
    AdvancedAbility ability;
    ability.setEnable(flags.next());
    ability.setLibId(211);
    ability.setSceneEnable(flags.next());
    ability.setSceneMin(212);
    ability.setSceneMax(213);
    ability.setSceneUnit("u214");
    ability.setHightEnable(flags.next());
    ability.setHightUnit("u215");
    ability.setAngleEnable(flags.next());
    ability.setAngleUnit("u216");
    ability.setFOVEnable(flags.next());
    ability.setFOVUnit("u217");
    ability.setCameraShakeEnable(flags.next());
    ability.setCameraShakeMin(218);
    ability.setCameraShakeMax(219);
    ability.setHighNoiseEnable(flags.next());
    ability.setHighNoiseMin(220);
    ability.setHighNoiseMax(221);
    ability.setLowContrastEnable(flags.next());
    ability.setLowContrastMin(222);
    ability.setLowContrastMax(223);
    ability.setPeriodMotionEnable(flags.next());
    ability.setPeriodMotionMin(224);
    ability.setPeriodMotionMax(225);
    ability.setPeriodMotionTimeEnable(flags.next());
    ability.setPeriodMotionTimeMin(226);
    ability.setPeriodMotionTimeMax(227);
    ability.setPeriodMotionTimeUnit("u228");
    ability.setPixelToRealSizeEnable(flags.next());
    ability.setRealSizeEnable(flags.next());
    ability.setRealSizeUnit("u229");
    ability.setSegmentLayTypeEnable(flags.next());
    ability.setSegmentEnable(flags.next());
    return ability;
}

void expectAdvancedAbility(const AdvancedAbility& expected, const AdvancedAbility& ability)
{
    EXPECT_EQ(expected.getEnable(), ability.getEnable());
    EXPECT_EQ(expected.getLibId(), ability.getLibId());
    EXPECT_EQ(expected.getSceneEnable(), ability.getSceneEnable());
    EXPECT_EQ(expected.getSceneMin(), ability.getSceneMin());
    EXPECT_EQ(expected.getSceneMax(), ability.getSceneMax());
    EXPECT_EQ(expected.getSceneUnit(), ability.getSceneUnit());
    EXPECT_EQ(expected.getHightEnable(), ability.getHightEnable());
    EXPECT_EQ(expected.getHightUnit(), ability.getHightUnit());
    EXPECT_EQ(expected.getAngleEnable(), ability.getAngleEnable());
    EXPECT_EQ(expected.getAngleUnit(), ability.getAngleUnit());
    EXPECT_EQ(expected.getFOVEnable(), ability.getFOVEnable());
    EXPECT_EQ(expected.getFOVUnit(), ability.getFOVUnit());
    EXPECT_EQ(expected.getCameraShakeEnable(), ability.getCameraShakeEnable());
    EXPECT_EQ(expected.getCameraShakeMin(), ability.getCameraShakeMin());
    EXPECT_EQ(expected.getCameraShakeMax(), ability.getCameraShakeMax());
    EXPECT_EQ(expected.getHighNoiseEnable(), ability.getHighNoiseEnable());
    EXPECT_EQ(expected.getHighNoiseMin(), ability.getHighNoiseMin());
    EXPECT_EQ(expected.getHighNoiseMax(), ability.getHighNoiseMax());
    EXPECT_EQ(expected.getLowContrastEnable(), ability.getLowContrastEnable());
    EXPECT_EQ(expected.getLowContrastMin(), ability.getLowContrastMin());
    EXPECT_EQ(expected.getLowContrastMax(), ability.getLowContrastMax());
    EXPECT_EQ(expected.getPeriodMotionEnable(), ability.getPeriodMotionEnable());
    EXPECT_EQ(expected.getPeriodMotionMin(), ability.getPeriodMotionMin());
    EXPECT_EQ(expected.getPeriodMotionMax(), ability.getPeriodMotionMax());
    EXPECT_EQ(expected.getPeriodMotionTimeEnable(), ability.getPeriodMotionTimeEnable());
    EXPECT_EQ(expected.getPeriodMotionTimeMin(), ability.getPeriodMotionTimeMin());
    EXPECT_EQ(expected.getPeriodMotionTimeMax(), ability.getPeriodMotionTimeMax());
    EXPECT_EQ(expected.getPeriodMotionTimeUnit(), ability.getPeriodMotionTimeUnit());
    EXPECT_EQ(expected.getPixelToRealSizeEnable(), ability.getPixelToRealSizeEnable());
    EXPECT_EQ(expected.getRealSizeEnable(), ability.getRealSizeEnable());
    EXPECT_EQ(expected.getRealSizeUnit(), ability.getRealSizeUnit());
    EXPECT_EQ(expected.getSegmentLayTypeEnable(), ability.getSegmentLayTypeEnable());
    EXPECT_EQ(expected.getSegmentEnable(), ability.getSegmentEnable());
}

LibCommonAbility library(int id, bool enable, int width, int height, int regions, int functions)
{
    LibCommonAbility ability;
    ability.setLibId(id);
    ability.setEnable(enable);
    ability.setResolutionWidth(width);
    ability.setResolutionHeight(height);
    ability.setTotalAnalyseRegionNum(regions);
    ability.setMaxEnableFunsNum(functions);
    return ability;
}

void expectLibrary(const LibCommonAbility& expected, const LibCommonAbility& ability)
{
    EXPECT_EQ(expected.getLibId(), ability.getLibId());
    EXPECT_EQ(expected.getEnable(), ability.getEnable());
    EXPECT_EQ(expected.getResolutionWidth(), ability.getResolutionWidth());
    EXPECT_EQ(expected.getResolutionHeight(), ability.getResolutionHeight());
    EXPECT_EQ(expected.getTotalAnalyseRegionNum(), ability.getTotalAnalyseRegionNum());
    EXPECT_EQ(expected.getMaxEnableFunsNum(), ability.getMaxEnableFunsNum());
}

IntelligenceAnalyseAbility sample(Flags flags = Flags())
{
    IntelligenceAnalyseAbility ability;
    ability.setVersion(3);
    ability.setLibCommonAbilityList({library(1, true, 704, 576, 16, 8), library(2, false, 352, 288, 4, 2)});
    ability.setMotionDetectionAbilityV2(motionDetectionAbilityV2(flags));
    ability.setPerimeterAbility(perimeterAbility(flags));
    ability.setTripWireAbility(tripWireAbility(flags));
    ability.setMultiTripWireAbility(multiTripWireAbility(flags));
    ability.setLoiterAbility(loiterAbility(flags));
    ability.setMultiLoiterAbility(multiLoiterAbility(flags));
    ability.setObjLeftAbility(objLeftAbility(flags));
    ability.setObjMoveAbility(objMoveAbility(flags));
    ability.setAbnormalSpeedAbility(abnormalSpeedAbility(flags));
    ability.setConverseAbility(converseAbility(flags));
    ability.setNoParkingAbility(noParkingAbility(flags));
    ability.setSignalBadAbility(signalBadAbility(flags));
    ability.setCameraTamperAbility(cameraTamperAbility(flags));
    ability.setCameraMoveAbility(cameraMoveAbility(flags));
    ability.setAdvancedAbility(advancedAbility(flags));
    return ability;
}

void expectFunctions(const IntelligenceAnalyseAbility& expected, const IntelligenceAnalyseAbility& ability)
{
    expectMotionDetectionAbilityV2(expected.getMotionDetectionAbilityV2(), ability.getMotionDetectionAbilityV2());
    expectPerimeterAbility(expected.getPerimeterAbility(), ability.getPerimeterAbility());
    expectTripWireAbility(expected.getTripWireAbility(), ability.getTripWireAbility());
    expectMultiTripWireAbility(expected.getMultiTripWireAbility(), ability.getMultiTripWireAbility());
    expectLoiterAbility(expected.getLoiterAbility(), ability.getLoiterAbility());
    expectMultiLoiterAbility(expected.getMultiLoiterAbility(), ability.getMultiLoiterAbility());
    expectObjLeftAbility(expected.getObjLeftAbility(), ability.getObjLeftAbility());
    expectObjMoveAbility(expected.getObjMoveAbility(), ability.getObjMoveAbility());
    expectAbnormalSpeedAbility(expected.getAbnormalSpeedAbility(), ability.getAbnormalSpeedAbility());
    expectConverseAbility(expected.getConverseAbility(), ability.getConverseAbility());
    expectNoParkingAbility(expected.getNoParkingAbility(), ability.getNoParkingAbility());
    expectSignalBadAbility(expected.getSignalBadAbility(), ability.getSignalBadAbility());
    expectCameraTamperAbility(expected.getCameraTamperAbility(), ability.getCameraTamperAbility());
    expectCameraMoveAbility(expected.getCameraMoveAbility(), ability.getCameraMoveAbility());
    expectAdvancedAbility(expected.getAdvancedAbility(), ability.getAdvancedAbility());
}

void expectAbility(const IntelligenceAnalyseAbility& expected, const IntelligenceAnalyseAbility& ability)
{
    EXPECT_EQ(expected.getVersion(), ability.getVersion());
    ASSERT_EQ(expected.getLibCommonAbilityList().size(), ability.getLibCommonAbilityList().size());
    for (std::size_t place = 0; place < ability.getLibCommonAbilityList().size(); ++place)
        expectLibrary(expected.getLibCommonAbilityList()[place], ability.getLibCommonAbilityList()[place]);
    expectFunctions(expected, ability);
}

/// The golden with other flags of the functions.
std::string goldenWith(Flags flags)
{
    const std::string text = golden("analysis/IntelligenceAnalyseAbilityXml.node.xml");
    const std::string start = " enable=\"";
    std::string changed;
    std::size_t behind = 0;
    for (std::size_t at = text.find(start, text.find("<Functions>")); at != std::string::npos;
         at = text.find(start, behind))
    {
        at += start.size();
        changed += text.substr(behind, at - behind) + (flags.next() ? "true" : "false");
        behind = text.find('"', at);
    }
    return changed + text.substr(behind);
}

const char* const versionOnly = "<IntelligenceAnalyseAbility><Version value='1' />";
const char* const end = "</IntelligenceAnalyseAbility>";

bool readsFunctions(const std::string& functions, IntelligenceAnalyseAbility& ability)
{
    return IntelligenceAnalyseAbilityXml().parseXmlString(
        versionOnly + ("<LIBCommon /><Functions>" + functions + "</Functions>") + end, ability);
}

/// What reading @p functions prints, but for the lines of functions that are missing.
std::string linesOf(const std::string& functions)
{
    CapturedOutput output;
    IntelligenceAnalyseAbility ability;
    EXPECT_TRUE(readsFunctions(functions, ability));
    std::istringstream printed(output.text());
    std::string lines;
    for (std::string line; std::getline(printed, line);)
    {
        if (line.find("::parse") == std::string::npos || line.find("Default") != std::string::npos)
            lines += line + "\n";
    }
    return lines;
}

} // namespace

TEST(IntelligenceAnalyseAbilityXml, Writes)
{
    std::string text;
    ASSERT_TRUE(IntelligenceAnalyseAbilityXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "analysis/IntelligenceAnalyseAbilityXml.node.xml"));
}

TEST(IntelligenceAnalyseAbilityXml, Reads)
{
    CapturedOutput output;
    IntelligenceAnalyseAbility read;
    ASSERT_TRUE(IntelligenceAnalyseAbilityXml().parseXmlString(
        golden("analysis/IntelligenceAnalyseAbilityXml.node.xml"), read));
    expectAbility(sample(), read);
    EXPECT_EQ("", output.text());
}

TEST(IntelligenceAnalyseAbilityXml, TellsEveryFlagApart)
{
    for (int bit = 0; bit < 7; ++bit)
    {
        const IntelligenceAnalyseAbility expected = sample(Flags(bit));
        std::string text;
        ASSERT_TRUE(IntelligenceAnalyseAbilityXml().createXmlString(expected, text));
        EXPECT_EQ(goldenWith(Flags(bit)), text);

        IntelligenceAnalyseAbility read;
        ASSERT_TRUE(IntelligenceAnalyseAbilityXml().parseXmlString(text, read));
        expectAbility(expected, read);
    }
}

TEST(IntelligenceAnalyseAbilityXml, ReplacesTheLibraries)
{
    IntelligenceAnalyseAbility read = sample();
    ASSERT_TRUE(IntelligenceAnalyseAbilityXml().parseXmlString(
        golden("analysis/IntelligenceAnalyseAbilityXml.node.xml"), read));
    expectAbility(sample(), read);
}

TEST(IntelligenceAnalyseAbilityXml, ReadsADocumentWithOnlyAVersion)
{
    CapturedOutput output;
    IntelligenceAnalyseAbility read = sample();
    ASSERT_TRUE(IntelligenceAnalyseAbilityXml().parseXmlString(std::string(versionOnly) + end, read));
    IntelligenceAnalyseAbility expected = sample();
    expected.setVersion(1);
    expectAbility(expected, read);
    EXPECT_EQ("IntelligenceAnalyseAbilityXml::parseLibCommonNode get LibCommonAbilityList Failed! Node isn't exist! \n"
              "IntelligenceAnalyseAbilityXml::parseFunctionsNode  Can not find Functions Node! \n",
              output.text());
}

TEST(IntelligenceAnalyseAbilityXml, RefusesADocumentWithoutItsVersion)
{
    for (const char* version : {"", "<Version />"})
    {
        IntelligenceAnalyseAbility read = sample();
        std::string text = golden("analysis/IntelligenceAnalyseAbilityXml.node.xml");
        text.replace(text.find("<Version"), std::string("<Version value=\"3\" />").size(), version);
        EXPECT_FALSE(IntelligenceAnalyseAbilityXml().parseXmlString(text, read));
        expectAbility(sample(), read);
    }
}

TEST(IntelligenceAnalyseAbilityXml, DisablesFunctionsThatAreMissing)
{
    CapturedOutput output;
    IntelligenceAnalyseAbility read = sample();
    ASSERT_TRUE(readsFunctions("", read));
    EXPECT_EQ("IntelligenceAnalyseAbilityXml::parseMotionDetectionNode Can not find MotionDetection Node! \n"
              "IntelligenceAnalyseAbilityXml::parsePerimeterNode get Perimeter Node Failed! \n"
              "IntelligenceAnalyseAbilityXml::parseTripWireNode get TripWire Node Failed! \n"
              "IntelligenceAnalyseAbilityXml::parseMultiTripWireNode get MultiTripWire Node Failed! \n"
              "IntelligenceAnalyseAbilityXml::parseLoiterNode get Loiter Node Failed! \n"
              "IntelligenceAnalyseAbilityXml::parseMultiLoiterNode get MultiLoiter Node Failed! \n"
              "IntelligenceAnalyseAbilityXml::parseObjLeftNode get ObjLeft Node Failed! \n"
              "IntelligenceAnalyseAbilityXml::parseObjMoveNode get ObjMove Node Failed! \n"
              "IntelligenceAnalyseAbilityXml::parseAbnormalSpeedNode get AbnormalSpeed Node Failed! \n"
              "IntelligenceAnalyseAbilityXml::parseConverseNode get Converse Node Failed! \n"
              "IntelligenceAnalyseAbilityXml::parseNoParkingNode get NoParking Node Failed! \n"
              "IntelligenceAnalyseAbilityXml::parseSignalBadNode get SignalBad Node Failed! \n"
              "IntelligenceAnalyseAbilityXml::parseCameraTamperNode get CameraTamper Node Failed! \n"
              "IntelligenceAnalyseAbilityXml::parseCameraMoveNode get CameraMove Node Failed! \n"
              "IntelligenceAnalyseAbilityXml::parseAdvancedNode get Advanced Node Failed! \n",
              output.text());

    IntelligenceAnalyseAbility expected;
    {
        MotionDetectionAbilityV2 missing;
        missing.setLibId(-1);
        expected.setMotionDetectionAbilityV2(missing);
    }
    {
        PerimeterAbility missing;
        missing.setLibId(-1);
        expected.setPerimeterAbility(missing);
    }
    {
        TripWireAbility missing;
        missing.setLibId(-1);
        expected.setTripWireAbility(missing);
    }
    {
        MultiTripWireAbility missing;
        missing.setLibId(-1);
        expected.setMultiTripWireAbility(missing);
    }
    {
        LoiterAbility missing;
        missing.setLibId(-1);
        expected.setLoiterAbility(missing);
    }
    {
        MultiLoiterAbility missing;
        missing.setLibId(-1);
        expected.setMultiLoiterAbility(missing);
    }
    {
        ObjLeftAbility missing;
        missing.setLibId(-1);
        expected.setObjLeftAbility(missing);
    }
    {
        ObjMoveAbility missing;
        missing.setLibId(-1);
        expected.setObjMoveAbility(missing);
    }
    {
        AbnormalSpeedAbility missing;
        missing.setLibId(-1);
        expected.setAbnormalSpeedAbility(missing);
    }
    {
        ConverseAbility missing;
        missing.setLibId(-1);
        expected.setConverseAbility(missing);
    }
    {
        NoParkingAbility missing;
        missing.setLibId(-1);
        expected.setNoParkingAbility(missing);
    }
    {
        SignalBadAbility missing;
        missing.setLibId(-1);
        expected.setSignalBadAbility(missing);
    }
    {
        CameraTamperAbility missing;
        missing.setLibId(-1);
        expected.setCameraTamperAbility(missing);
    }
    {
        CameraMoveAbility missing;
        missing.setLibId(-1);
        expected.setCameraMoveAbility(missing);
    }
    {
        AdvancedAbility missing;
        missing.setLibId(-1);
        expected.setAdvancedAbility(missing);
    }
    expectFunctions(expected, read);
    EXPECT_TRUE(read.getLibCommonAbilityList().empty());
}

TEST(IntelligenceAnalyseAbilityXml, PrintsALineForWhatALibraryLacks)
{
    CapturedOutput output;
    IntelligenceAnalyseAbility read;
    ASSERT_TRUE(IntelligenceAnalyseAbilityXml().parseXmlString(
        std::string(versionOnly) + "<LIBCommon><Other /><LIB><Resolution /><Common /></LIB></LIBCommon>" + end, read));
    ASSERT_EQ(1U, read.getLibCommonAbilityList().size());
    expectLibrary(library(-1, false, 320, 240, 0, 0), read.getLibCommonAbilityList()[0]);
    EXPECT_EQ("LibCommon get LibId Failed! Set Default Value -1 \n"
              "LibCommon get Enable Failed! Set Default Value false \n"
              "LibCommon get VideoWidth Failed! Set Default Value 320 \n"
              "LibCommon get VideoHeight Failed! Set Default Value 240 \n"
              "LibCommon get TotalAnalyseRegionNum Failed! Set Default Value 0 \n"
              "LibCommon get MaxEnableFunsNum Failed! Set Default Value 0 \n"
              "IntelligenceAnalyseAbilityXml::parseFunctionsNode  Can not find Functions Node! \n",
              output.text());
}

TEST(IntelligenceAnalyseAbilityXml, RaisesWhereAPartIsMissing)
{
    for (const char* part : {"<LIBCommon><LIB ID='1'><Common /></LIB></LIBCommon>",
                             "<LIBCommon><LIB ID='1'><Resolution /></LIB></LIBCommon>",
                             "<LIBCommon /><Functions><MotionDetection /></Functions>"})
    {
        CapturedOutput output;
        IntelligenceAnalyseAbility read = sample();
        EXPECT_THROW(IntelligenceAnalyseAbilityXml().parseXmlString(versionOnly + std::string(part) + end, read),
                     ZTRuntimeError)
            << part;
        expectAbility(sample(), read);
    }
}

TEST(IntelligenceAnalyseAbilityXml, PrintsALineForWhatAFunctionLacks)
{
    EXPECT_EQ("IntelligenceAnalyseAbilityXml Failed! get Enable Attr In CameraMove Node failed! Default false! \n"
              "IntelligenceAnalyseAbilityXml Failed! get LibId Attr In CameraMove Node failed! Default -1! \n",
              linesOf("<CameraMove />"));
    EXPECT_EQ("IntelligenceAnalyseAbilityXml Failed! get MinTime Node In CameraTamper Node failed! can not find this "
              "node! \n",
              linesOf("<CameraTamper enable='true' LibId='1' />"));
    EXPECT_EQ(
        "IntelligenceAnalyseAbilityXml Failed! get Enable of MinTime Node In CameraTamper Node failed! Default "
        "false! \n"
        "IntelligenceAnalyseAbilityXml Failed! get Min of MinTime Node In CameraTamper Node failed! Default 0! \n"
        "IntelligenceAnalyseAbilityXml Failed! get Max of MinTime Node In CameraTamper Node failed! Default 0! \n",
        linesOf("<CameraTamper enable='true' LibId='1'><MinTime /></CameraTamper>"));
    EXPECT_EQ("IntelligenceAnalyseAbilityXml::parseMotionDetectionNode get CellEnable Failed! Default false! \n"
              "IntelligenceAnalyseAbilityXml::parseMotionDetectionNode get WidthCellNumber Failed! Default false! \n"
              "IntelligenceAnalyseAbilityXml::parseMotionDetectionNode get HeightCellNumber Failed! Default false! \n",
              linesOf("<MotionDetection enable='true' LibId='1'><Sensitivity enable='true' min='1' max='2' /><Cell />"
                      "</MotionDetection>"));
}

TEST(IntelligenceAnalyseAbilityXml, PrintsALineForWhatARegionLacks)
{
    const std::string rest = "<DetailGet enable='true' /><MinTargetSize enable='true' min='1' max='2' /><MaxTargetSize "
                             "enable='true' min='1' "
                             "max='2' /><MinTime enable='true' min='1' max='2' /></ObjLeft>";
    EXPECT_EQ("IntelligenceAnalyseAbilityXml::getRegionParam get Region Node In ObjLeft Node Failed! \n",
              linesOf("<ObjLeft enable='true' LibId='1'>" + rest));
    EXPECT_EQ(
        "IntelligenceAnalyseAbilityXml::getRegionParam get Enable of Region Node In ObjLeft Node Failed! Default "
        "false! \n"
        "IntelligenceAnalyseAbilityXml::getRegionParam get EdgeNum of Region Node In ObjLeft Node Failed! Default "
        "0! \n"
        "IntelligenceAnalyseAbilityXml::getRegionParam get EdgeNum of Region Node In ObjLeft Node Failed! Default "
        "0! \n",
        linesOf("<ObjLeft enable='true' LibId='1'><Region />" + rest));
}

TEST(IntelligenceAnalyseAbilityXml, StopsAtAMissingPixelSizeInSilence)
{
    const std::string units = "<Hight enable='true' /><Angle enable='true' /><FOV enable='true' />";
    std::string ranges;
    for (const char* name : {"Scene", "CameraShake", "HighNoise", "LowContrast", "PeriodMotion", "PeriodMotionTime"})
        ranges += std::string("<") + name + " enable='true' min='1' max='2' />";
    EXPECT_EQ("", linesOf("<Advanced enable='true' LibId='1'>" + units + ranges + "</Advanced>"));
    EXPECT_EQ(
        "IntelligenceAnalyseAbilityXml Failed! get RealSize Node In PixelToRealSize Node failed! can not find this "
        "node! \n"
        "IntelligenceAnalyseAbilityXml Failed! get SegmentLayType Node In PixelToRealSize Node failed! can not find "
        "this node! \n"
        "IntelligenceAnalyseAbilityXml Failed! get Segment Node In PixelToRealSize Node failed! can not find this "
        "node! \n",
        linesOf("<Advanced enable='true' LibId='1'>" + units + ranges + "<PixelToRealSize /></Advanced>"));
}

TEST(IntelligenceAnalyseAbilityXml, IgnoresTheUnitOfARangeWithoutOne)
{
    for (const char* unit : {"", "percent"})
    {
        CapturedOutput output;
        IntelligenceAnalyseAbility read;
        ASSERT_TRUE(readsFunctions(std::string("<MotionDetection enable='true' LibId='1'><Sensitivity enable='true' "
                                               "min='5' max='95' unit='") +
                                       unit + "' /><Cell /></MotionDetection>",
                                   read));
        EXPECT_TRUE(read.getMotionDetectionAbilityV2().getSensitivityEnable());
        EXPECT_EQ(5, read.getMotionDetectionAbilityV2().getSensitivityMin());
        EXPECT_EQ(95, read.getMotionDetectionAbilityV2().getSensitivityMax());
    }
}

TEST(IntelligenceAnalyseAbilityXml, FindsNodesInAnyOrder)
{
    CapturedOutput output;
    IntelligenceAnalyseAbility read;
    ASSERT_TRUE(IntelligenceAnalyseAbilityXml().parseXmlString(
        "<IntelligenceAnalyseAbility><Functions><CameraMove enable='true' LibId='4' /><SignalBad enable='true' "
        "LibId='5'>"
        "<DetailGet enable='true' /></SignalBad></Functions><Version value='2' /></IntelligenceAnalyseAbility>",
        read));
    EXPECT_EQ(2, read.getVersion());
    EXPECT_EQ(4, read.getCameraMoveAbility().getLibId());
    EXPECT_TRUE(read.getSignalBadAbility().getDetailGet());
}
