#include "snapshot/SnapShotConfigXml.h"

#include "tests/support/Documents.h"

namespace
{

SnapShotConfig sample()
{
    SnapShotConfig config;
    config.setSnapShotStreamId(3);
    return config;
}

} // namespace

TEST(SnapShotConfigXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(SnapShotConfigXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "snapshot/SnapShotConfigXml.node.xml"));
}

TEST(SnapShotConfigXml, ReadsNodes)
{
    SnapShotConfig read;
    ASSERT_TRUE(SnapShotConfigXml().parseXmlString(golden("snapshot/SnapShotConfigXml.node.xml"), read));
    EXPECT_EQ(3, read.getSnapShotStreamId());
}

TEST(SnapShotConfigXml, ResetsWhatIsMissingInSilence)
{
    CapturedOutput output;
    SnapShotConfig read = sample();
    ASSERT_TRUE(SnapShotConfigXml().parseXmlString("<SnapShotConfig />", read));
    EXPECT_EQ(0, read.getSnapShotStreamId());
    EXPECT_EQ("", output.text());
}

TEST(SnapShotConfigXml, RefusesARootWithASmallLetter)
{
    SnapShotConfig read;
    EXPECT_FALSE(SnapShotConfigXml().parseXmlString("<SnapshotConfig snapShotStreamId='3' />", read));
}

TEST(SnapShotConfigXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    SnapShotConfig read = sample();
    EXPECT_FALSE(SnapShotConfigXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(SnapShotConfigXml().parseDomainXmlNode(empty, read));
    EXPECT_EQ(3, read.getSnapShotStreamId());
}
