#include "ptz/PTZPresetXml.h"

#include "tests/support/Documents.h"

namespace
{

PTZPreset sample()
{
    PTZPreset preset;
    preset.setCameraId(3);
    preset.setPresetName("Gate");
    preset.setPresetId(9);
    return preset;
}

void expectPreset(const PTZPreset& expected, const PTZPreset& preset)
{
    EXPECT_EQ(expected.getCameraId(), preset.getCameraId());
    EXPECT_EQ(expected.getPresetName(), preset.getPresetName());
    EXPECT_EQ(expected.getPresetId(), preset.getPresetId());
}

} // namespace

TEST(PTZPresetXml, Writes)
{
    PTZPresetXml codec;
    codec.setPTZPreset(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "ptz/PTZPresetXml.document.xml"));
}

TEST(PTZPresetXml, Reads)
{
    PTZPresetXml codec;
    ASSERT_TRUE(reads(codec, golden("ptz/PTZPresetXml.document.xml")));
    expectPreset(sample(), codec.getPTZPreset());
}

TEST(PTZPresetXml, ResetsWhatIsMissing)
{
    PTZPresetXml codec;
    codec.setPTZPreset(sample());
    ASSERT_TRUE(reads(codec, "<PTZPreset />"));
    expectPreset(PTZPreset(), codec.getPTZPreset());
}
