#include "media/DeviceROIInfoParamXml.h"

#include "tests/media/RegionSample.h"
#include "tests/support/Documents.h"

namespace
{

DeviceROIInfoParam sample()
{
    DeviceROIInfoParam regions;
    regions.getCameraInfo().setDeviceId("D-17");
    regions.getCameraInfo().setCameraId(4);
    regions.setROIInfoParamList({sampleRegion(), ROIInfoParam()});
    return regions;
}

void expectRegions(const DeviceROIInfoParam& expected, const DeviceROIInfoParam& regions)
{
    EXPECT_EQ(expected.getCameraInfo().getDeviceId(), regions.getCameraInfo().getDeviceId());
    EXPECT_EQ(expected.getCameraInfo().getCameraId(), regions.getCameraInfo().getCameraId());
    ASSERT_EQ(expected.getROIInfoParamList().size(), regions.getROIInfoParamList().size());
    for (std::size_t number = 0; number < regions.getROIInfoParamList().size(); ++number)
        expectRegion(expected.getROIInfoParamList()[number], regions.getROIInfoParamList()[number]);
}

} // namespace

TEST(DeviceROIInfoParamXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(DeviceROIInfoParamXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "media/DeviceROIInfoParamXml.node.xml"));
}

TEST(DeviceROIInfoParamXml, ReadsNodes)
{
    DeviceROIInfoParam read;
    ASSERT_TRUE(DeviceROIInfoParamXml().parseXmlString(golden("media/DeviceROIInfoParamXml.node.xml"), read));
    expectRegions(sample(), read);
}

TEST(DeviceROIInfoParamXml, ResetsWhatANodeLacks)
{
    CapturedOutput output;
    DeviceROIInfoParam read = sample();
    ASSERT_TRUE(DeviceROIInfoParamXml().parseXmlString("<DeviceROIInfoParam />", read));
    expectRegions(DeviceROIInfoParam(), read);
    EXPECT_EQ("", output.text());
}

TEST(DeviceROIInfoParamXml, WritesLists)
{
    std::string text;
    ASSERT_TRUE(DeviceROIInfoParamXml().createXmlString({sample(), DeviceROIInfoParam()}, text));
    EXPECT_TRUE(matchesGolden(text, "media/DeviceROIInfoParamXml.list.xml"));
    ASSERT_TRUE(DeviceROIInfoParamXml().createXmlString(std::vector<DeviceROIInfoParam>(), text));
    EXPECT_EQ("<DeviceROIInfoParamList />\n", text);
}

TEST(DeviceROIInfoParamXml, ReadsListsBehindWhatTheyHold)
{
    std::vector<DeviceROIInfoParam> list(1, sample());
    ASSERT_TRUE(DeviceROIInfoParamXml().parseXmlString(golden("media/DeviceROIInfoParamXml.list.xml"), list));
    ASSERT_EQ(3U, list.size());
    expectRegions(sample(), list[0]);
    expectRegions(sample(), list[1]);
    expectRegions(DeviceROIInfoParam(), list[2]);
}

TEST(DeviceROIInfoParamXml, ReplacesTheRegionsOfTheRecord)
{
    DeviceROIInfoParam read = sample();
    ASSERT_TRUE(DeviceROIInfoParamXml().parseXmlString(golden("media/DeviceROIInfoParamXml.node.xml"), read));
    expectRegions(sample(), read);
}

TEST(DeviceROIInfoParamXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    DeviceROIInfoParam read = sample();
    EXPECT_FALSE(DeviceROIInfoParamXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(DeviceROIInfoParamXml().parseDomainXmlNode(empty, read));
    expectRegions(sample(), read);
}
