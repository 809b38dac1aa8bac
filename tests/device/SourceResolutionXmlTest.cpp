#include "device/SourceResolutionXml.h"

#include "tests/device/AbilitySample.h"
#include "tests/device/VideoAbilitySample.h"
#include "tests/support/Documents.h"

namespace
{

SourceResolution source()
{
    SourceResolution source;
    source.setCameraId(14);
    source.setVideoSystem(sampleVideoSystem());
    source.setVideoResolution(sampleVideoResolution());
    return source;
}

std::vector<SourceResolution> sample()
{
    return {source(), SourceResolution()};
}

void expectSourceResolution(const SourceResolution& expected, const SourceResolution& read)
{
    EXPECT_EQ(expected.getCameraId(), read.getCameraId());
    expectVideoSystem(expected.getVideoSystem(), read.getVideoSystem());
    expectVideoResolution(expected.getVideoResolution(), read.getVideoResolution());
}

void expectSources(const std::vector<SourceResolution>& expected, const std::vector<SourceResolution>& read)
{
    expectList(expected, read, expectSourceResolution);
}

} // namespace

TEST(SourceResolutionXml, Writes)
{
    SourceResolutionXml codec;
    codec.setSourceResolutionList(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "device/SourceResolutionXml.document.xml"));
}

TEST(SourceResolutionXml, Reads)
{
    SourceResolutionXml codec;
    ASSERT_TRUE(reads(codec, golden("device/SourceResolutionXml.document.xml")));
    expectSources(sample(), codec.getSourceResolutionList());
}

TEST(SourceResolutionXml, AddsToTheListItemsOfAnyNameBehindTheFirst)
{
    SourceResolutionXml codec;
    codec.setSourceResolutionList({source()});
    ASSERT_TRUE(reads(codec, "<SourceResolutionList><Other CameraID='1' />text<SourceResolution /><!-- -->"
                             "<Other CameraID='2' /></SourceResolutionList>"));
    SourceResolution second;
    second.setCameraId(2);
    expectSources({source(), SourceResolution(), second}, codec.getSourceResolutionList());
}

TEST(SourceResolutionXml, WritesAnEmptyList)
{
    SourceResolutionXml codec;
    EXPECT_EQ("<SourceResolutionList />\n", written(codec));
}
