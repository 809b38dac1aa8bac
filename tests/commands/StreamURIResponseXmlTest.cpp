#include "commands/StreamURIResponseXml.h"

#include "tests/support/Documents.h"

TEST(StreamURIResponseXml, Writes)
{
    StreamURIResponseXml codec;
    codec.setStreamURI("rtsp://192.0.2.17/1?a=2&b=3");
    EXPECT_TRUE(matchesGolden(written(codec), "commands/StreamURIResponseXml.document.xml"));
}

TEST(StreamURIResponseXml, Reads)
{
    StreamURIResponseXml codec;
    ASSERT_TRUE(reads(codec, golden("commands/StreamURIResponseXml.document.xml")));
    EXPECT_EQ("rtsp://192.0.2.17/1?a=2&b=3", codec.getStreamURI());
}

TEST(StreamURIResponseXml, IsEmptyWhenNewAndLeavesWhatIsMissing)
{
    StreamURIResponseXml codec;
    ASSERT_TRUE(reads(codec, "<StreamURIResponseInfo />"));
    EXPECT_EQ("", codec.getStreamURI());

    StreamURIResponseXml used;
    used.setStreamURI("old");
    ASSERT_TRUE(reads(used, "<StreamURIResponseInfo />"));
    EXPECT_EQ("old", used.getStreamURI());
}
