#include "commands/CMSStreamParamXml.h"

#include "tests/media/StreamSamples.h"
#include "tests/support/Documents.h"

namespace
{

CMSStreamParam sample()
{
    CMSStreamParam param;
    param.setCameraID(1);
    param.setVideoEncodeQualityList({sampleVideoQuality(11), sampleVideoQuality(31)});
    return param;
}

void expectParam(const CMSStreamParam& expected, const CMSStreamParam& param)
{
    EXPECT_EQ(expected.getCameraID(), param.getCameraID());
    ASSERT_EQ(expected.getVideoEncodeQualityList().size(), param.getVideoEncodeQualityList().size());
    for (std::size_t number = 0; number < param.getVideoEncodeQualityList().size(); ++number)
        expectVideoQuality(expected.getVideoEncodeQualityList()[number], param.getVideoEncodeQualityList()[number]);
}

} // namespace

TEST(CMSStreamParamXml, Writes)
{
    CMSStreamParamXml codec;
    codec.setCMSStreamParam(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "commands/CMSStreamParamXml.document.xml"));
}

TEST(CMSStreamParamXml, Reads)
{
    CMSStreamParamXml codec;
    ASSERT_TRUE(reads(codec, golden("commands/CMSStreamParamXml.document.xml")));
    expectParam(sample(), codec.getCMSStreamParam());
}

TEST(CMSStreamParamXml, ResetsTheCameraAndLeavesAListThatIsMissing)
{
    CMSStreamParamXml codec;
    codec.setCMSStreamParam(sample());
    ASSERT_TRUE(reads(codec, "<CMSStreamParam />"));
    CMSStreamParam expected = sample();
    expected.setCameraID(0);
    expectParam(expected, codec.getCMSStreamParam());
}

TEST(CMSStreamParamXml, AddsStreamsBehindThoseThatAreThere)
{
    CMSStreamParamXml codec;
    codec.getCMSStreamParam().setVideoEncodeQualityList({sampleVideoQuality(71)});
    ASSERT_TRUE(reads(codec, golden("commands/CMSStreamParamXml.document.xml")));
    CMSStreamParam expected = sample();
    expected.setVideoEncodeQualityList({sampleVideoQuality(71), sampleVideoQuality(11), sampleVideoQuality(31)});
    expectParam(expected, codec.getCMSStreamParam());
}

TEST(CMSStreamParamXml, WalksOnFromTheFirstStreamOverElementsOfAnyName)
{
    CMSStreamParamXml codec;
    ASSERT_TRUE(reads(codec, "<CMSStreamParam><VideoEncodeQualityList><Other Quality='1' />"
                             "<!--VideoEncodeQuality--><VideoEncodeQuality Quality='2' />text<Other Quality='3' />"
                             "</VideoEncodeQualityList></CMSStreamParam>"));
    const std::vector<VideoEncodeQuality>& streams = codec.getCMSStreamParam().getVideoEncodeQualityList();
    ASSERT_EQ(2U, streams.size());
    EXPECT_EQ(2, streams[0].getQuality());
    EXPECT_EQ(3, streams[1].getQuality());
}
