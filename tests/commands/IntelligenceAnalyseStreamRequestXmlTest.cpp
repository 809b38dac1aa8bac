#include "commands/IntelligenceAnalyseStreamRequestXml.h"

#include "tests/support/Documents.h"

namespace
{

void expectFields(int cameraId, int streamId, int consumerId, int type,
                  const IntelligenceAnalyseStreamRequestXml& codec)
{
    EXPECT_EQ(cameraId, codec.getCameraId());
    EXPECT_EQ(streamId, codec.getStreamId());
    EXPECT_EQ(consumerId, codec.getConsumerId());
    EXPECT_EQ(type, codec.getType());
}

void fill(IntelligenceAnalyseStreamRequestXml& codec, int first)
{
    codec.setCameraId(first);
    codec.setStreamId(first + 1);
    codec.setConsumerId(first + 2);
    codec.setType(first + 3);
}

} // namespace

TEST(IntelligenceAnalyseStreamRequestXml, Writes)
{
    IntelligenceAnalyseStreamRequestXml codec;
    fill(codec, 1);
    EXPECT_TRUE(matchesGolden(written(codec), "commands/IntelligenceAnalyseStreamRequestXml.element.xml"));
}

TEST(IntelligenceAnalyseStreamRequestXml, WritesEachTextAnew)
{
    IntelligenceAnalyseStreamRequestXml codec;
    codec.setXmlString("<Other CameraId='9' StreamId='9' ComsumerId='9' Type='9' />");
    ASSERT_TRUE(codec.parseXmlString());
    fill(codec, 1);
    const std::string once = written(codec);
    EXPECT_EQ(golden("commands/IntelligenceAnalyseStreamRequestXml.element.xml"), once);
    EXPECT_EQ(once, written(codec));
}

TEST(IntelligenceAnalyseStreamRequestXml, Reads)
{
    IntelligenceAnalyseStreamRequestXml codec;
    ASSERT_TRUE(reads(codec, golden("commands/IntelligenceAnalyseStreamRequestXml.element.xml")));
    expectFields(1, 2, 3, 4, codec);
}

TEST(IntelligenceAnalyseStreamRequestXml, ReadsARootOfAnyName)
{
    IntelligenceAnalyseStreamRequestXml codec;
    ASSERT_TRUE(reads(codec, "<Other Type='4' ComsumerId='3' StreamId='2' CameraId='1' />"));
    expectFields(1, 2, 3, 4, codec);
}

TEST(IntelligenceAnalyseStreamRequestXml, StopsAtTheFirstMissingAttribute)
{
    IntelligenceAnalyseStreamRequestXml codec;
    fill(codec, 11);
    EXPECT_FALSE(reads(codec, "<Other CameraId='1' StreamId='2' ComsumerId='3' />"));
    expectFields(1, 2, 3, 14, codec);

    fill(codec, 11);
    EXPECT_FALSE(reads(codec, "<Other CameraId='1' StreamId='2' ConsumerId='3' Type='4' />"));
    expectFields(1, 2, 13, 14, codec);

    fill(codec, 11);
    EXPECT_FALSE(reads(codec, "<Other CameraId='1' ComsumerId='3' Type='4' />"));
    expectFields(1, 12, 13, 14, codec);

    fill(codec, 11);
    EXPECT_FALSE(reads(codec, "<Other StreamId='2' ComsumerId='3' Type='4' />"));
    expectFields(11, 12, 13, 14, codec);
}

TEST(IntelligenceAnalyseStreamRequestXml, LeavesTheFieldsOfAMalformedText)
{
    IntelligenceAnalyseStreamRequestXml codec;
    fill(codec, 11);
    EXPECT_FALSE(reads(codec, ""));
    EXPECT_FALSE(reads(codec, "<Other CameraId='1' StreamId='2' ComsumerId='3' Type='4'"));
    expectFields(11, 12, 13, 14, codec);
}

TEST(IntelligenceAnalyseStreamRequestXml, TakesWhatIsNoNumberForZero)
{
    IntelligenceAnalyseStreamRequestXml codec;
    fill(codec, 11);
    ASSERT_TRUE(reads(codec, "<Other CameraId='x' StreamId='2y' ComsumerId='' Type='4' />"));
    expectFields(0, 2, 0, 4, codec);
}
