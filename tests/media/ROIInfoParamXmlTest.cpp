#include "media/ROIInfoParamXml.h"

#include "tests/media/RegionSample.h"
#include "tests/support/Documents.h"

TEST(ROIInfoParamXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(ROIInfoParamXml().createXmlString(sampleRegion(), text));
    EXPECT_TRUE(matchesGolden(text, "media/ROIInfoParamXml.node.xml"));
}

TEST(ROIInfoParamXml, ReadsNodes)
{
    ROIInfoParam read;
    ASSERT_TRUE(ROIInfoParamXml().parseXmlString(golden("media/ROIInfoParamXml.node.xml"), read));
    expectRegion(sampleRegion(), read);
}

TEST(ROIInfoParamXml, PrintsALineForEachMissingProperty)
{
    CapturedOutput output;
    ROIInfoParam read = sampleRegion();
    ASSERT_TRUE(ROIInfoParamXml().parseXmlString("<ROIInfoParam />", read));
    expectRegion(ROIInfoParam(), read);
    EXPECT_EQ("ROIInfoParamXml::parseDomainXmlNode get Name failed \n"
              "ROIInfoParamXml::parseDomainXmlNode get StreamID failed \n"
              "ROIInfoParamXml::parseDomainXmlNode get IndexID failed \n"
              "ROIInfoParamXml::parseDomainXmlNode get ROIEnableFlag failed \n"
              "ROIInfoParamXml::parseDomainXmlNode get ROILevel failed \n",
              output.text());
}

TEST(ROIInfoParamXml, WritesLists)
{
    std::string text;
    ASSERT_TRUE(ROIInfoParamXml().createXmlString({sampleRegion(), ROIInfoParam()}, text));
    EXPECT_TRUE(matchesGolden(text, "media/ROIInfoParamXml.list.xml"));
    ASSERT_TRUE(ROIInfoParamXml().createXmlString(std::vector<ROIInfoParam>(), text));
    EXPECT_EQ("<ROIInfoParamList />\n", text);
}

TEST(ROIInfoParamXml, ReadsListsBehindWhatTheyHold)
{
    std::vector<ROIInfoParam> list(1, sampleRegion());
    ASSERT_TRUE(ROIInfoParamXml().parseXmlString(golden("media/ROIInfoParamXml.list.xml"), list));
    ASSERT_EQ(3U, list.size());
    expectRegion(sampleRegion(), list[0]);
    expectRegion(sampleRegion(), list[1]);
    expectRegion(ROIInfoParam(), list[2]);
}

TEST(ROIInfoParamXml, PrintsTheLinesOfItsArea)
{
    CapturedOutput output;
    ROIInfoParam read = sampleRegion();
    ASSERT_TRUE(ROIInfoParamXml().parseXmlString(
        "<ROIInfoParam Name='' StreamID='' IndexID='' ROIEnableFlag='' ROILevel=''><AreaParam TopX='1' Width='2' />"
        "</ROIInfoParam>",
        read));
    EXPECT_EQ("AreaParamXml::parseDomainXmlNode get TopY failed \n"
              "AreaParamXml::parseDomainXmlNode get Height failed \n",
              output.text());
}

TEST(ROIInfoParamXml, ReadsItemsOfAnyName)
{
    CapturedOutput output;
    std::vector<ROIInfoParam> list;
    ASSERT_TRUE(ROIInfoParamXml().parseXmlString(
        "<ROIInfoParamList>text<!--ROIInfoParam--><Other IndexID='9' /></ROIInfoParamList>", list));
    ASSERT_EQ(1U, list.size());
    EXPECT_EQ(9, list[0].getIndexID());
}

TEST(ROIInfoParamXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    ROIInfoParam read = sampleRegion();
    EXPECT_FALSE(ROIInfoParamXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(ROIInfoParamXml().parseDomainXmlNode(empty, read));
    expectRegion(sampleRegion(), read);
}

TEST(ROIInfoParamXml, RefusesTheRootOfTheOtherKind)
{
    ROIInfoParam read;
    std::vector<ROIInfoParam> list;
    EXPECT_FALSE(ROIInfoParamXml().parseXmlString(golden("media/ROIInfoParamXml.list.xml"), read));
    EXPECT_FALSE(ROIInfoParamXml().parseXmlString(golden("media/ROIInfoParamXml.node.xml"), list));
    EXPECT_TRUE(list.empty());
}
