#include "snapshot/SnapshotParameterXml.h"

#include "tests/snapshot/SnapshotPolicySample.h"
#include "tests/support/Documents.h"

TEST(SnapshotParameterXml, Writes)
{
    SnapshotParameterXml codec;
    codec.setSnapshotParameter(sampleSnapshotParameter());
    EXPECT_TRUE(matchesGolden(written(codec), "snapshot/SnapshotParameterXml.document.xml"));
}

TEST(SnapshotParameterXml, Reads)
{
    SnapshotParameterXml codec;
    ASSERT_TRUE(reads(codec, golden("snapshot/SnapshotParameterXml.document.xml")));
    expectSnapshotParameter(sampleSnapshotParameter(), codec.getSnapshotParameter());
}

TEST(SnapshotParameterXml, ResetsNumbersAndLeavesTheResolutionThatIsMissing)
{
    SnapshotParameterXml codec;
    codec.setSnapshotParameter(sampleSnapshotParameter());
    ASSERT_TRUE(reads(codec, "<SnapshotParameter />"));
    SnapshotParameter expected;
    expected.setVideoResolution(sampleSnapshotParameter().getVideoResolution());
    expectSnapshotParameter(expected, codec.getSnapshotParameter());
}

TEST(SnapshotParameterXml, ReplacesTheResolutionByTheOneThatIsThere)
{
    SnapshotParameterXml codec;
    codec.setSnapshotParameter(sampleSnapshotParameter());
    ASSERT_TRUE(reads(codec, "<SnapshotParameter><VideoResolution VideoWidth='7' /></SnapshotParameter>"));
    SnapshotParameter expected;
    expected.getVideoResolution().setVideoWidth(7);
    expectSnapshotParameter(expected, codec.getSnapshotParameter());
}

TEST(SnapshotParameterXml, CarriesTheHighestQualityAsASignedNumber)
{
    SnapshotParameter parameter;
    parameter.setQuality(4294967295U);
    const std::string expected = "<SnapshotParameter Quality=\"-1\" duration=\"0\" ShootTimes=\"0\" interval=\"0\">\n"
                                 "\t<VideoResolution VideoHeight=\"0\" VideoWidth=\"0\" ResolutionName=\"\" />\n"
                                 "</SnapshotParameter>\n";
    SnapshotParameterXml codec;
    codec.setSnapshotParameter(parameter);
    EXPECT_EQ(expected, written(codec));
    SnapshotParameterXml reader;
    ASSERT_TRUE(reads(reader, expected));
    expectSnapshotParameter(parameter, reader.getSnapshotParameter());

    std::string text;
    ASSERT_TRUE(SnapshotParameterXml().createXmlString(parameter, text));
    EXPECT_EQ(expected, text);
    SnapshotParameter read;
    ASSERT_TRUE(SnapshotParameterXml().parseXmlString(text, read));
    expectSnapshotParameter(parameter, read);
}

TEST(SnapshotParameterXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(SnapshotParameterXml().createXmlString(sampleSnapshotParameter(), text));
    EXPECT_TRUE(matchesGolden(text, "snapshot/SnapshotParameterXml.node.xml"));
}

TEST(SnapshotParameterXml, ReadsNodes)
{
    SnapshotParameter read;
    ASSERT_TRUE(SnapshotParameterXml().parseXmlString(golden("snapshot/SnapshotParameterXml.node.xml"), read));
    expectSnapshotParameter(sampleSnapshotParameter(), read);
}

TEST(SnapshotParameterXml, ResetsWhatANodeLacksInSilence)
{
    CapturedOutput output;
    SnapshotParameter read = sampleSnapshotParameter();
    ASSERT_TRUE(SnapshotParameterXml().parseXmlString("<SnapshotParameter />", read));
    expectSnapshotParameter(SnapshotParameter(), read);
    EXPECT_EQ("", output.text());
}

TEST(SnapshotParameterXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    SnapshotParameter read = sampleSnapshotParameter();
    EXPECT_FALSE(SnapshotParameterXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(SnapshotParameterXml().parseDomainXmlNode(empty, read));
    expectSnapshotParameter(sampleSnapshotParameter(), read);
}
