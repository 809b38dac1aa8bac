#include "commands/AVDataQueueXml.h"

#include "tests/support/Documents.h"

namespace
{

AVDataQueue sample(int first)
{
    AVDataQueue queue;
    queue.setCameraId(first);
    queue.setChannelId(first + 1);
    return queue;
}

void expectQueue(const AVDataQueue& expected, const AVDataQueue& queue)
{
    EXPECT_EQ(expected.getCameraId(), queue.getCameraId());
    EXPECT_EQ(expected.getChannelId(), queue.getChannelId());
}

} // namespace

TEST(AVDataQueueXml, Writes)
{
    AVDataQueueXml codec;
    codec.setAVDataQueue(sample(11));
    EXPECT_TRUE(matchesGolden(written(codec), "commands/AVDataQueueXml.document.xml"));
}

TEST(AVDataQueueXml, Reads)
{
    AVDataQueueXml codec;
    ASSERT_TRUE(reads(codec, golden("commands/AVDataQueueXml.document.xml")));
    expectQueue(sample(11), codec.getAVDataQueue());
}

TEST(AVDataQueueXml, ResetsWhatIsMissing)
{
    AVDataQueueXml codec;
    codec.setAVDataQueue(sample(11));
    ASSERT_TRUE(reads(codec, "<AVDataQueue />"));
    expectQueue(AVDataQueue(), codec.getAVDataQueue());
}
