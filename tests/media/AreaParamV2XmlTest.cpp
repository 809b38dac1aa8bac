#include "media/AreaParamV2Xml.h"

#include "tests/media/RegionSample.h"
#include "tests/support/Documents.h"

TEST(AreaParamV2Xml, Writes)
{
    std::string text;
    ASSERT_TRUE(AreaParamV2Xml().createXmlString(sampleFractionalArea(), text));
    EXPECT_TRUE(matchesGolden(text, "media/AreaParamV2Xml.node.xml"));
}

TEST(AreaParamV2Xml, Reads)
{
    AreaParamV2 read;
    ASSERT_TRUE(AreaParamV2Xml().parseXmlString(golden("media/AreaParamV2Xml.node.xml"), read));
    expectFractionalArea(sampleFractionalArea(), read);
}

TEST(AreaParamV2Xml, StopsAtTheFirstMissingProperty)
{
    CapturedOutput output;
    AreaParamV2 read;
    EXPECT_FALSE(AreaParamV2Xml().parseXmlString("<AreaParam TopY='2' Width='3' Height='4' />", read));
    expectFractionalArea(AreaParamV2(), read);

    AreaParamV2 expected;
    expected.setTopX(1.5);
    EXPECT_FALSE(AreaParamV2Xml().parseXmlString("<AreaParam TopX='1.5' Width='3' Height='4' />", read));
    expectFractionalArea(expected, read);

    expected.setTopY(2.5);
    EXPECT_FALSE(AreaParamV2Xml().parseXmlString("<AreaParam TopX='1.5' TopY='2.5' Height='4' />", read));
    expectFractionalArea(expected, read);

    expected.setWidth(3.5);
    EXPECT_FALSE(AreaParamV2Xml().parseXmlString("<AreaParam TopX='1.5' TopY='2.5' Width='3.5' />", read));
    expectFractionalArea(expected, read);
    EXPECT_EQ("", output.text());
}

TEST(AreaParamV2Xml, ReadsWhatIsNoNumberAsZero)
{
    AreaParamV2 read = sampleFractionalArea();
    ASSERT_TRUE(AreaParamV2Xml().parseXmlString("<AreaParam TopX='x' TopY='' Width='1.5x' Height='1e2' />", read));
    AreaParamV2 expected;
    expected.setWidth(1.5);
    expected.setHeight(100);
    expectFractionalArea(expected, read);
}
