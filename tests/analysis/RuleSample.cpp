#include "tests/analysis/RuleSample.h"

#include "tests/alarm/ActionSample.h"
#include "tests/alarm/ScheduleSample.h"

#include <gtest/gtest.h>

void setBasePart(IntelligeBaseParam& rule)
{
    rule.setDeviceID("D-9");
    rule.setCameraID(21);
    rule.setEnable(true);
    rule.setAlarmInterval(22);
    rule.setAlarmOutActionList({sampleAlarmOutAction()});
    rule.setAlarmPTZActionList({sampleAlarmPTZAction()});
    rule.setAlarmRecordActionList({sampleAlarmRecordAction()});
    rule.setAlarmOverlayActionList({sampleAlarmOverlayAction()});
    rule.setScheduleTimeParam(sampleScheduleTimeParam());
}

void expectBasePart(const IntelligeBaseParam& expected, const IntelligeBaseParam& rule)
{
    EXPECT_EQ(expected.getDeviceID(), rule.getDeviceID());
    EXPECT_EQ(expected.getCameraID(), rule.getCameraID());
    EXPECT_EQ(expected.getEnable(), rule.getEnable());
    EXPECT_EQ(expected.getAlarmInterval(), rule.getAlarmInterval());
    expectAlarmOutActions(expected.getAlarmOutActionList(), rule.getAlarmOutActionList());
    expectAlarmPTZActions(expected.getAlarmPTZActionList(), rule.getAlarmPTZActionList());
    expectAlarmRecordActions(expected.getAlarmRecordActionList(), rule.getAlarmRecordActionList());
    expectAlarmOverlayActions(expected.getAlarmOverlayActionList(), rule.getAlarmOverlayActionList());
    expectScheduleTimeParam(expected.getScheduleTimeParam(), rule.getScheduleTimeParam());
}

PolygonArea samplePolygonArea()
{
    PolygonArea area;
    area.addPoint(0.25F, 0.5F);
    area.addPoint(0.75F, -3);
    return area;
}

void expectPolygonArea(const PolygonArea& expected, const PolygonArea& area)
{
    ASSERT_EQ(expected.getVecPoints().size(), area.getVecPoints().size());
    for (std::size_t place = 0; place < area.getVecPoints().size(); ++place)
    {
        EXPECT_EQ(expected.getVecPoints()[place].getX(), area.getVecPoints()[place].getX());
        EXPECT_EQ(expected.getVecPoints()[place].getY(), area.getVecPoints()[place].getY());
    }
}

LineCross sampleLineCross()
{
    LineCross line;
    line.setLineCrossStartX(0.1F);
    line.setLineCrossStartY(0.2F);
    line.setLineCrossEndX(0.8F);
    line.setLineCrossEndY(-0.9F);
    return line;
}

LineCross otherLineCross()
{
    LineCross line;
    line.setLineCrossStartX(1.5F);
    line.setLineCrossStartY(1.25F);
    line.setLineCrossEndX(2.5F);
    line.setLineCrossEndY(3.5F);
    return line;
}

void expectLineCross(const LineCross& expected, const LineCross& line)
{
    EXPECT_EQ(expected.getLineCrossStartX(), line.getLineCrossStartX());
    EXPECT_EQ(expected.getLineCrossStartY(), line.getLineCrossStartY());
    EXPECT_EQ(expected.getLineCrossEndX(), line.getLineCrossEndX());
    EXPECT_EQ(expected.getLineCrossEndY(), line.getLineCrossEndY());
}

void expectTarget(const TargetRegionParam& expected, const TargetRegionParam& region)
{
    EXPECT_EQ(expected.getTargetTypeConstrain(), region.getTargetTypeConstrain());
    EXPECT_EQ(expected.getTargetType(), region.getTargetType());
    EXPECT_EQ(expected.getTargetSizeConstrain(), region.getTargetSizeConstrain());
    EXPECT_EQ(expected.getMinTargetSize(), region.getMinTargetSize());
    EXPECT_EQ(expected.getMaxTargetSize(), region.getMaxTargetSize());
}

void expectLinger(const LingerRegionParam& expected, const LingerRegionParam& region)
{
    EXPECT_EQ(expected.getMinTargetSize(), region.getMinTargetSize());
    EXPECT_EQ(expected.getMaxTargetSize(), region.getMaxTargetSize());
    EXPECT_EQ(expected.getMinTime(), region.getMinTime());
    expectPolygonArea(expected.getRegion(), region.getRegion());
}

std::string textOf(const SafePointer<DomainXmlNode>& node)
{
    std::string text;
    EXPECT_TRUE(DomainXmlNode::toString(node, text));
    return text;
}

void addText(const std::string& text, SafePointer<DomainXmlNode>& node)
{
    SafePointer<DomainXmlNode> child;
    ASSERT_TRUE(DomainXmlNode::parse(text, child));
    ASSERT_TRUE(node->addConfigNode(child));
}

std::string withOneFlag(std::string text, const std::vector<std::string>& flags, const std::string& flag)
{
    for (const std::string& other : flags)
    {
        const std::string set = " " + other + "=\"true\"";
        const std::size_t at = text.find(set);
        EXPECT_NE(std::string::npos, at) << other;
        if (other != flag && at != std::string::npos) text.replace(at, set.size(), " " + other + "=\"false\"");
    }
    return text;
}
