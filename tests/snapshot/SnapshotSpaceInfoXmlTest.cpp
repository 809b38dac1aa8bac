#include "snapshot/SnapshotSpaceInfoXml.h"

#include "tests/support/Documents.h"

namespace
{

SnapshotSpaceInfo info(int space)
{
    SnapshotSpaceInfo info;
    info.setUseableSpace(space);
    return info;
}

} // namespace

TEST(SnapshotSpaceInfoXml, Writes)
{
    SnapshotSpaceInfoXml codec;
    codec.setSnapshotSpaceInfo(info(4096));
    EXPECT_TRUE(matchesGolden(written(codec), "snapshot/SnapshotSpaceInfoXml.document.xml"));
}

TEST(SnapshotSpaceInfoXml, Reads)
{
    SnapshotSpaceInfoXml codec;
    ASSERT_TRUE(reads(codec, golden("snapshot/SnapshotSpaceInfoXml.document.xml")));
    EXPECT_EQ(4096, codec.getSnapshotSpaceInfo().getUseableSpace());
}

TEST(SnapshotSpaceInfoXml, ResetsWhatIsMissing)
{
    SnapshotSpaceInfoXml codec;
    codec.setSnapshotSpaceInfo(info(7));
    ASSERT_TRUE(reads(codec, "<SnapshotSpaceInfo UseableSpace='9' />"));
    EXPECT_EQ(0, codec.getSnapshotSpaceInfo().getUseableSpace());
}

TEST(SnapshotSpaceInfoXml, TakesWhatIsNoNumberForZero)
{
    SnapshotSpaceInfoXml codec;
    codec.setSnapshotSpaceInfo(info(7));
    ASSERT_TRUE(reads(codec, "<SnapshotSpaceInfo deviceId='D-17' />"));
    EXPECT_EQ(0, codec.getSnapshotSpaceInfo().getUseableSpace());
}
