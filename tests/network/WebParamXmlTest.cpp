#include "network/WebParamXml.h"

#include "tests/support/Documents.h"

TEST(WebParamXml, Writes)
{
    WebParamXml codec;
    codec.setWebServerPort(8080);
    EXPECT_TRUE(matchesGolden(written(codec), "network/WebParamXml.document.xml"));
}

TEST(WebParamXml, Reads)
{
    WebParamXml codec;
    ASSERT_TRUE(reads(codec, golden("network/WebParamXml.document.xml")));
    EXPECT_EQ(8080, codec.getWebServerPort());
}

TEST(WebParamXml, IsZeroWhenNewAndLeavesWhatIsMissing)
{
    WebParamXml codec;
    ASSERT_TRUE(reads(codec, "<WebParam />"));
    EXPECT_EQ(0, codec.getWebServerPort());

    WebParamXml used;
    used.setWebServerPort(8080);
    ASSERT_TRUE(reads(used, "<WebParam />"));
    EXPECT_EQ(8080, used.getWebServerPort());
}

TEST(WebParamXml, NarrowsThePort)
{
    WebParamXml codec;
    ASSERT_TRUE(reads(codec, "<WebParam WebServerPort='70000' />"));
    EXPECT_EQ(4464, codec.getWebServerPort());
}
