#include "device/DevicePortXml.h"

#include "tests/device/DevicePortSample.h"
#include "tests/support/Documents.h"

TEST(DevicePortXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(DevicePortXml().createXmlString(samplePorts(), text));
    EXPECT_TRUE(matchesGolden(text, "device/DevicePortXml.node.xml"));
}

TEST(DevicePortXml, ReadsNodes)
{
    DevicePort read;
    ASSERT_TRUE(DevicePortXml().parseXmlString(golden("device/DevicePortXml.node.xml"), read));
    expectPorts(samplePorts(), read);
}

TEST(DevicePortXml, ResetsWhatANodeLacks)
{
    CapturedOutput output;
    DevicePort read = samplePorts();
    ASSERT_TRUE(DevicePortXml().parseXmlString("<DevicePort />", read));
    expectPorts(DevicePort(), read);
    EXPECT_EQ("", output.text());
}

TEST(DevicePortXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    DevicePort read = samplePorts();
    EXPECT_FALSE(DevicePortXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(DevicePortXml().parseDomainXmlNode(empty, read));
    expectPorts(samplePorts(), read);
}

TEST(DevicePortXml, NarrowsPorts)
{
    DevicePort read;
    ASSERT_TRUE(
        DevicePortXml().parseXmlString("<DevicePort HttpPort='65537' RTPPort='8000x' RTSPPort='none' />", read));
    EXPECT_EQ(1, read.getHttpPort());
    EXPECT_EQ(8000, read.getRTPPort());
    EXPECT_EQ(0, read.getRTSPPort());
}
