#include "device/DeviceTypeXml.h"

#include "tests/support/Documents.h"

namespace
{

DeviceType sample()
{
    DeviceType type;
    type.setDeviceTypeId(12);
    type.setDeviceTypeName("Recorder");
    return type;
}

void expectType(const DeviceType& expected, const DeviceType& type)
{
    EXPECT_EQ(expected.getDeviceTypeId(), type.getDeviceTypeId());
    EXPECT_EQ(expected.getDeviceTypeName(), type.getDeviceTypeName());
}

} // namespace

TEST(DeviceTypeXml, Writes)
{
    DeviceTypeXml codec;
    codec.setDeviceType(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "device/DeviceTypeXml.document.xml"));
}

TEST(DeviceTypeXml, Reads)
{
    DeviceTypeXml codec;
    ASSERT_TRUE(reads(codec, golden("device/DeviceTypeXml.document.xml")));
    expectType(sample(), codec.getDeviceType());
}

TEST(DeviceTypeXml, ResetsWhatIsMissing)
{
    DeviceTypeXml codec;
    codec.setDeviceType(sample());
    ASSERT_TRUE(reads(codec, "<DeviceType />"));
    expectType(DeviceType(), codec.getDeviceType());
}

TEST(DeviceTypeXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(DeviceTypeXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "device/DeviceTypeXml.node.xml"));
}

TEST(DeviceTypeXml, ReadsNodes)
{
    DeviceType read;
    ASSERT_TRUE(DeviceTypeXml().parseXmlString(golden("device/DeviceTypeXml.node.xml"), read));
    expectType(sample(), read);
}

TEST(DeviceTypeXml, ResetsWhatANodeLacks)
{
    CapturedOutput output;
    DeviceType read = sample();
    ASSERT_TRUE(DeviceTypeXml().parseXmlString("<DeviceType />", read));
    expectType(DeviceType(), read);
    EXPECT_EQ("", output.text());
}

TEST(DeviceTypeXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    DeviceType read = sample();
    EXPECT_FALSE(DeviceTypeXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(DeviceTypeXml().parseDomainXmlNode(empty, read));
    expectType(sample(), read);
}
