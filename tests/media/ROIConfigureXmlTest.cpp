#include "media/ROIConfigureXml.h"

#include "tests/media/RegionSample.h"
#include "tests/support/Documents.h"

namespace
{

std::vector<ROIConfigure> sample()
{
    std::vector<ROIConfigure> streams(2);
    streams[0].setStreamID(6);
    streams[0].setROIInfoParamList({sampleRegion(), ROIInfoParam()});
    streams[1].setStreamID(7);
    return streams;
}

void expectStream(const ROIConfigure& expected, const ROIConfigure& stream)
{
    EXPECT_EQ(expected.getStreamID(), stream.getStreamID());
    ASSERT_EQ(expected.getROIInfoParamList().size(), stream.getROIInfoParamList().size());
    for (std::size_t number = 0; number < stream.getROIInfoParamList().size(); ++number)
        expectRegion(expected.getROIInfoParamList()[number], stream.getROIInfoParamList()[number]);
}

} // namespace

TEST(ROIConfigureXml, WritesLists)
{
    std::string text;
    ASSERT_TRUE(ROIConfigureXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "media/ROIConfigureXml.list.xml"));
    ASSERT_TRUE(ROIConfigureXml().createXmlString(std::vector<ROIConfigure>(), text));
    EXPECT_EQ("<ROIConfigureList />\n", text);
}

TEST(ROIConfigureXml, ReadsListsBehindWhatTheyHold)
{
    std::vector<ROIConfigure> list(1, sample()[1]);
    ASSERT_TRUE(ROIConfigureXml().parseXmlString(golden("media/ROIConfigureXml.list.xml"), list));
    ASSERT_EQ(3U, list.size());
    expectStream(sample()[1], list[0]);
    expectStream(sample()[0], list[1]);
    expectStream(sample()[1], list[2]);
}

TEST(ROIConfigureXml, TakesStreamsOfAnyNameAndRegionsByTheirs)
{
    CapturedOutput output;
    std::vector<ROIConfigure> list;
    ASSERT_TRUE(ROIConfigureXml().parseXmlString(
        "<ROIConfigureList>text<Other><!--ROIInfoParam--><Other Name='no' />"
        "<ROIInfoParam Name='yes' StreamID='' IndexID='' ROIEnableFlag='' ROILevel='' /></Other></ROIConfigureList>",
        list));
    ASSERT_EQ(1U, list.size());
    EXPECT_EQ(0, list[0].getStreamID());
    ASSERT_EQ(1U, list[0].getROIInfoParamList().size());
    EXPECT_EQ("yes", list[0].getROIInfoParamList()[0].getName());
    EXPECT_EQ("", output.text());
}

TEST(ROIConfigureXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    std::vector<ROIConfigure> list = sample();
    EXPECT_FALSE(ROIConfigureXml().createDomainXmlNode(list, empty));
    EXPECT_FALSE(ROIConfigureXml().parseDomainXmlNode(empty, list));
    EXPECT_EQ(2U, list.size());
}
