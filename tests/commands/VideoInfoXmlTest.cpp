#include "commands/VideoInfoXml.h"

#include "tests/support/Documents.h"

namespace
{

VideoInfo sample(int first)
{
    VideoInfo info;
    info.setBitRate(static_cast<std::uint32_t>(first));
    info.setBitErrorRate(static_cast<std::uint32_t>(first + 1));
    info.setTimePerFrame(static_cast<std::uint32_t>(first + 2));
    info.setSize(static_cast<std::uint32_t>(first + 3));
    info.setWidth(static_cast<std::uint32_t>(first + 4));
    info.setHeight(static_cast<std::uint32_t>(first + 5));
    info.setPlanes(static_cast<std::uint16_t>(first + 6));
    info.setBitCount(static_cast<std::uint16_t>(first + 7));
    info.setCompression(static_cast<std::uint32_t>(first + 8));
    info.setSizeImage(static_cast<std::uint32_t>(first + 9));
    info.setXPelsPerMeter(first + 10);
    info.setYPelsPerMeter(first + 11);
    info.setClrUsed(static_cast<std::uint32_t>(first + 12));
    info.setClrImportant(static_cast<std::uint32_t>(first + 13));
    info.setSPS_PPSData("Z0IAKeKQ", 8);
    return info;
}

void expectInfo(const VideoInfo& expected, const VideoInfo& info)
{
    EXPECT_EQ(expected.getBitRate(), info.getBitRate());
    EXPECT_EQ(expected.getBitErrorRate(), info.getBitErrorRate());
    EXPECT_EQ(expected.getTimePerFrame(), info.getTimePerFrame());
    EXPECT_EQ(expected.getSize(), info.getSize());
    EXPECT_EQ(expected.getWidth(), info.getWidth());
    EXPECT_EQ(expected.getHeight(), info.getHeight());
    EXPECT_EQ(expected.getPlanes(), info.getPlanes());
    EXPECT_EQ(expected.getBitCount(), info.getBitCount());
    EXPECT_EQ(expected.getCompression(), info.getCompression());
    EXPECT_EQ(expected.getSizeImage(), info.getSizeImage());
    EXPECT_EQ(expected.getXPelsPerMeter(), info.getXPelsPerMeter());
    EXPECT_EQ(expected.getYPelsPerMeter(), info.getYPelsPerMeter());
    EXPECT_EQ(expected.getClrUsed(), info.getClrUsed());
    EXPECT_EQ(expected.getClrImportant(), info.getClrImportant());
    EXPECT_EQ(expected.getSPS_PPSData(), info.getSPS_PPSData());
    EXPECT_EQ(expected.getSPS_PPSDataLen(), info.getSPS_PPSDataLen());
}

} // namespace

TEST(VideoInfoXml, Writes)
{
    VideoInfoXml codec;
    codec.setVideoInfo(sample(11));
    EXPECT_TRUE(matchesGolden(written(codec), "commands/VideoInfoXml.document.xml"));
}

TEST(VideoInfoXml, Reads)
{
    VideoInfoXml codec;
    ASSERT_TRUE(reads(codec, golden("commands/VideoInfoXml.document.xml")));
    expectInfo(sample(11), codec.getVideoInfo());
}

TEST(VideoInfoXml, ResetsWhatIsMissing)
{
    VideoInfoXml codec;
    codec.setVideoInfo(sample(11));
    ASSERT_TRUE(reads(codec, "<VideoInfo />"));
    expectInfo(VideoInfo(), codec.getVideoInfo());
}

TEST(VideoInfoXml, TakesNoMoreParameterSetsThanThereAre)
{
    struct Case
    {
        const char* attributes;
        const char* data;
    };
    static const Case cases[] = {
        {"SPS_PPSData='Z0IA' SPS_PPSDataLen='3'", "Z0I"},  {"SPS_PPSData='Z0IA' SPS_PPSDataLen='4'", "Z0IA"},
        {"SPS_PPSData='Z0IA' SPS_PPSDataLen='5'", "Z0IA"}, {"SPS_PPSData='Z0IA' SPS_PPSDataLen='2147483647'", "Z0IA"},
        {"SPS_PPSData='Z0IA' SPS_PPSDataLen='-1'", ""},    {"SPS_PPSData='Z0IA' SPS_PPSDataLen='-2147483648'", ""},
        {"SPS_PPSData='Z0IA' SPS_PPSDataLen='x'", ""},     {"SPS_PPSData='Z0IA'", ""},
        {"SPS_PPSData='' SPS_PPSDataLen='4'", ""},         {"SPS_PPSDataLen='4'", ""},
    };
    for (const Case& one : cases)
    {
        VideoInfoXml codec;
        codec.setVideoInfo(sample(11));
        ASSERT_TRUE(reads(codec, std::string("<VideoInfo ") + one.attributes + " />")) << one.attributes;
        const std::string data = one.data;
        EXPECT_EQ(data, codec.getVideoInfo().getSPS_PPSData()) << one.attributes;
        EXPECT_EQ(static_cast<int>(data.size()), codec.getVideoInfo().getSPS_PPSDataLen()) << one.attributes;
    }
}

TEST(VideoInfoXml, KeepsTheParameterSetsUpToTheirFirstZero)
{
    VideoInfo info;
    info.setSPS_PPSData("ab\0cd", 5);
    EXPECT_EQ("ab", info.getSPS_PPSData());
    EXPECT_EQ(2, info.getSPS_PPSDataLen());
    info.setSPS_PPSData(nullptr, 5);
    EXPECT_EQ("", info.getSPS_PPSData());
    EXPECT_EQ(0, info.getSPS_PPSDataLen());
    const char bytes[] = {'x', 'y'}; // no zero behind them
    info.setSPS_PPSData(bytes, 2);
    EXPECT_EQ("xy", info.getSPS_PPSData());
    info.setSPS_PPSData(info.getSPS_PPSData().c_str(), 1);
    EXPECT_EQ("x", info.getSPS_PPSData());
}

TEST(VideoInfoXml, CarriesTheHighestNumbersWhole)
{
    VideoInfo info = sample(11);
    info.setBitRate(4294967295U);
    info.setSizeImage(2147483648U);
    info.setXPelsPerMeter(-1);
    VideoInfoXml codec;
    codec.setVideoInfo(info);
    const std::string text = written(codec);
    EXPECT_NE(std::string::npos, text.find(" BitRate=\"4294967295\""));
    EXPECT_NE(std::string::npos, text.find(" SizeImage=\"2147483648\" XPelsPerMeter=\"-1\""));

    VideoInfoXml reader;
    ASSERT_TRUE(reads(reader, text));
    expectInfo(info, reader.getVideoInfo());
}
