#include "core/VersionXml.h"

#include "tests/support/Documents.h"

TEST(VersionXml, Writes)
{
    VersionXml codec;
    Version version;
    version.setHardwareVer("H1.2");
    version.setSoftwareVer("S3.4");
    codec.setVersion(version);
    EXPECT_TRUE(matchesGolden(written(codec), "core/VersionXml.document.xml"));
}

TEST(VersionXml, Reads)
{
    VersionXml codec;
    ASSERT_TRUE(reads(codec, golden("core/VersionXml.document.xml")));
    EXPECT_EQ("H1.2", codec.getVersion().getHardwareVer());
    EXPECT_EQ("S3.4", codec.getVersion().getSoftwareVer());
}

TEST(VersionXml, ResetsWhatIsMissing)
{
    VersionXml codec;
    codec.getVersion().setHardwareVer("old");
    codec.getVersion().setSoftwareVer("old");
    ASSERT_TRUE(reads(codec, "<Version />"));
    EXPECT_EQ("", codec.getVersion().getHardwareVer());
    EXPECT_EQ("", codec.getVersion().getSoftwareVer());
}
