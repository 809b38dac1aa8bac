#include "network/CMSCameraRegisterInfoParamXml.h"

#include "tests/network/CMSRegisterSample.h"
#include "tests/support/Documents.h"

TEST(CMSCameraRegisterInfoParamXml, Writes)
{
    CMSCameraRegisterInfoParamXml codec;
    codec.setCameraRegisterInfoParam({sampleCameraInfo(), CMSCameraRegisterInfoParam()});
    EXPECT_TRUE(matchesGolden(written(codec), "network/CMSCameraRegisterInfoParamXml.document.xml"));
}

TEST(CMSCameraRegisterInfoParamXml, WritesAnEmptyList)
{
    CMSCameraRegisterInfoParamXml codec;
    EXPECT_EQ("<CameraRegisterInfoParamList />\n", written(codec));
}

TEST(CMSCameraRegisterInfoParamXml, ReadsBehindWhatTheListHolds)
{
    CMSCameraRegisterInfoParamXml codec;
    codec.setCameraRegisterInfoParam({sampleCameraInfo()});
    ASSERT_TRUE(reads(codec, golden("network/CMSCameraRegisterInfoParamXml.document.xml")));
    ASSERT_EQ(3U, codec.getCameraRegisterInfoParam().size());
    expectCameraInfo(sampleCameraInfo(), codec.getCameraRegisterInfoParam()[0]);
    expectCameraInfo(sampleCameraInfo(), codec.getCameraRegisterInfoParam()[1]);
    expectCameraInfo(CMSCameraRegisterInfoParam(), codec.getCameraRegisterInfoParam()[2]);
}

TEST(CMSCameraRegisterInfoParamXml, PassesOverItemsOfOtherNames)
{
    CapturedOutput output;
    CMSCameraRegisterInfoParamXml codec;
    ASSERT_TRUE(reads(codec, "<CameraRegisterInfoParamList>text<!--CameraRegisterInfoParam--><Other CameraID='1' />"
                             "<CameraRegisterInfoParam CameraID='2' /><!-- --><Other CameraID='3' />"
                             "<CameraRegisterInfoParam /></CameraRegisterInfoParamList>"));
    ASSERT_EQ(2U, codec.getCameraRegisterInfoParam().size());
    EXPECT_EQ(2, codec.getCameraRegisterInfoParam()[0].getCameraID());
    expectCameraInfo(CMSCameraRegisterInfoParam(), codec.getCameraRegisterInfoParam()[1]);
    EXPECT_EQ("", output.text());
}

TEST(CMSCameraRegisterInfoParamXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(CMSCameraRegisterInfoParamXml().createXmlString(sampleCameraInfo(), text));
    EXPECT_TRUE(matchesGolden(text, "network/CMSCameraRegisterInfoParamXml.node.xml"));
}

TEST(CMSCameraRegisterInfoParamXml, ReadsNodes)
{
    CMSCameraRegisterInfoParam read;
    ASSERT_TRUE(
        CMSCameraRegisterInfoParamXml().parseXmlString(golden("network/CMSCameraRegisterInfoParamXml.node.xml"), read));
    expectCameraInfo(sampleCameraInfo(), read);
}

TEST(CMSCameraRegisterInfoParamXml, PrintsALineForEachValueThatANodeLacks)
{
    CapturedOutput output;
    CMSCameraRegisterInfoParam read = sampleCameraInfo();
    ASSERT_TRUE(CMSCameraRegisterInfoParamXml().parseXmlString("<CameraRegisterInfoParam />", read));
    expectCameraInfo(CMSCameraRegisterInfoParam(), read);
    EXPECT_EQ("CMSCameraRegisterInfoParamXml::parseDomainXmlNode get CameraID failed \n"
              "CMSCameraRegisterInfoParamXml::parseDomainXmlNode get CameraRegisterID failed \n",
              output.text());
}

TEST(CMSCameraRegisterInfoParamXml, WritesLists)
{
    std::string text;
    ASSERT_TRUE(
        CMSCameraRegisterInfoParamXml().createXmlString({sampleCameraInfo(), CMSCameraRegisterInfoParam()}, text));
    EXPECT_TRUE(matchesGolden(text, "network/CMSCameraRegisterInfoParamXml.list.xml"));
    ASSERT_TRUE(CMSCameraRegisterInfoParamXml().createXmlString(std::vector<CMSCameraRegisterInfoParam>(), text));
    EXPECT_EQ("<CameraRegisterInfoParamList />\n", text);
}

TEST(CMSCameraRegisterInfoParamXml, ReadsListsBehindWhatTheyHold)
{
    std::vector<CMSCameraRegisterInfoParam> list(1, sampleCameraInfo());
    ASSERT_TRUE(
        CMSCameraRegisterInfoParamXml().parseXmlString(golden("network/CMSCameraRegisterInfoParamXml.list.xml"), list));
    ASSERT_EQ(3U, list.size());
    expectCameraInfo(sampleCameraInfo(), list[0]);
    expectCameraInfo(sampleCameraInfo(), list[1]);
    expectCameraInfo(CMSCameraRegisterInfoParam(), list[2]);
}

TEST(CMSCameraRegisterInfoParamXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    CMSCameraRegisterInfoParam read = sampleCameraInfo();
    std::vector<CMSCameraRegisterInfoParam> list(1, sampleCameraInfo());
    EXPECT_FALSE(CMSCameraRegisterInfoParamXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(CMSCameraRegisterInfoParamXml().createDomainXmlNode(list, empty));
    EXPECT_FALSE(CMSCameraRegisterInfoParamXml().parseDomainXmlNode(empty, read));
    EXPECT_FALSE(CMSCameraRegisterInfoParamXml().parseDomainXmlNode(empty, list));
    expectCameraInfo(sampleCameraInfo(), read);
    EXPECT_EQ(1U, list.size());
}

TEST(CMSCameraRegisterInfoParamXml, RefusesTheRootOfTheOtherKind)
{
    CMSCameraRegisterInfoParam read;
    std::vector<CMSCameraRegisterInfoParam> list;
    EXPECT_FALSE(
        CMSCameraRegisterInfoParamXml().parseXmlString(golden("network/CMSCameraRegisterInfoParamXml.list.xml"), read));
    EXPECT_FALSE(
        CMSCameraRegisterInfoParamXml().parseXmlString(golden("network/CMSCameraRegisterInfoParamXml.node.xml"), list));
    EXPECT_TRUE(list.empty());
}
