#include "analysis/AdvancedParamXml.h"

#include "tests/analysis/RuleSample.h"
#include "tests/support/Documents.h"

namespace
{

PixelToRealSize size(int realSize, int layType, const LineCross& segment)
{
    PixelToRealSize size;
    size.setRealSize(realSize);
    size.setSegmentLayType(layType);
    size.setSegment(segment);
    return size;
}

AdvancedParam sample()
{
    AdvancedParam param;
    param.setScene(51);
    param.setHight(52);
    param.setAngle(53.5F);
    param.setFOV(54.25F);
    param.setCameraShake(55);
    param.setHighNoise(56);
    param.setLowContrast(57);
    param.setPeriodMotion(58);
    param.setPeriodMotionTime(59);
    param.setPixelToRealSizeList({size(60, 61, sampleLineCross()), size(62, 63, otherLineCross())});
    return param;
}

void expectParam(const AdvancedParam& expected, const AdvancedParam& param)
{
    EXPECT_EQ(expected.getScene(), param.getScene());
    EXPECT_EQ(expected.getHight(), param.getHight());
    EXPECT_EQ(expected.getAngle(), param.getAngle());
    EXPECT_EQ(expected.getFOV(), param.getFOV());
    EXPECT_EQ(expected.getCameraShake(), param.getCameraShake());
    EXPECT_EQ(expected.getHighNoise(), param.getHighNoise());
    EXPECT_EQ(expected.getLowContrast(), param.getLowContrast());
    EXPECT_EQ(expected.getPeriodMotion(), param.getPeriodMotion());
    EXPECT_EQ(expected.getPeriodMotionTime(), param.getPeriodMotionTime());
    ASSERT_EQ(expected.getPixelToRealSizeList().size(), param.getPixelToRealSizeList().size());
    for (std::size_t place = 0; place < param.getPixelToRealSizeList().size(); ++place)
    {
        const PixelToRealSize& wanted = expected.getPixelToRealSizeList()[place];
        const PixelToRealSize& read = param.getPixelToRealSizeList()[place];
        EXPECT_EQ(wanted.getRealSize(), read.getRealSize());
        EXPECT_EQ(wanted.getSegmentLayType(), read.getSegmentLayType());
        expectLineCross(wanted.getSegment(), read.getSegment());
    }
}

} // namespace

TEST(AdvancedParamXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(AdvancedParamXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "analysis/AdvancedParamXml.node.xml"));

    SafePointer<DomainXmlNode> node(new DomainXmlNode("AdvancedParam"));
    ASSERT_TRUE(AdvancedParamXml().createDomainXmlNode(sample(), node));
    EXPECT_TRUE(matchesGolden(textOf(node), "analysis/AdvancedParamXml.node.xml"));
}

TEST(AdvancedParamXml, ReadsNodes)
{
    CapturedOutput output;
    AdvancedParam read;
    ASSERT_TRUE(AdvancedParamXml().parseXmlString(golden("analysis/AdvancedParamXml.node.xml"), read));
    expectParam(sample(), read);
    ASSERT_TRUE(AdvancedParamXml().parseXmlString(golden("analysis/AdvancedParamXml.node.xml"), read));
    expectParam(sample(), read);
    EXPECT_EQ("", output.text());
}

TEST(AdvancedParamXml, ResetsWhatANodeLacks)
{
    CapturedOutput output;
    AdvancedParam read = sample();
    ASSERT_TRUE(AdvancedParamXml().parseXmlString("<AdvancedParam />", read));
    expectParam(AdvancedParam(), read);
    EXPECT_EQ("", output.text());
}

TEST(AdvancedParamXml, PassesOverOtherChildrenOfTheList)
{
    AdvancedParam read;
    ASSERT_TRUE(AdvancedParamXml().parseXmlString(
        "<AdvancedParam><PixelToRealSizeList><!-- --><Other /><PixelToRealSize><LineCross /></PixelToRealSize><Other />"
        "</PixelToRealSizeList></AdvancedParam>",
        read));
    AdvancedParam expected;
    expected.setPixelToRealSizeList({PixelToRealSize()});
    expectParam(expected, read);
}

TEST(AdvancedParamXml, RefusesALengthWithoutItsLine)
{
    AdvancedParam read = sample();
    EXPECT_FALSE(AdvancedParamXml().parseXmlString(
        "<AdvancedParam Scene='1'><PixelToRealSizeList><PixelToRealSize /></PixelToRealSizeList></AdvancedParam>",
        read));
    expectParam(sample(), read);
}

TEST(AdvancedParamXml, RefusesAnEmptyPointer)
{
    const AdvancedParamXml codec;
    SafePointer<DomainXmlNode> empty;
    AdvancedParam read = sample();
    LineCross line = sampleLineCross();
    EXPECT_FALSE(codec.createDomainXmlNode(read, empty));
    EXPECT_FALSE(codec.parseDomainXmlNode(empty, read));
    EXPECT_FALSE(codec.createAdvancedRegionParamListToDomainXmlNode(read.getPixelToRealSizeList(), empty));
    EXPECT_FALSE(codec.createLineCrossToDomainXmlNode(line, empty));
    EXPECT_FALSE(codec.parseLineCrossToDomainXmlNode(empty, line));
    expectParam(sample(), read);
    expectLineCross(sampleLineCross(), line);
}
