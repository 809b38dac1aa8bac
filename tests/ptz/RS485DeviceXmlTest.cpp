#include "ptz/RS485DeviceXml.h"

#include "tests/ptz/ExternInterfaceSample.h"
#include "tests/support/Documents.h"

TEST(RS485DeviceXml, Writes)
{
    RS485DeviceXml codec;
    codec.setRS485Device(samplePort());
    EXPECT_TRUE(matchesGolden(written(codec), "ptz/RS485DeviceXml.document.xml"));
}

TEST(RS485DeviceXml, Reads)
{
    RS485DeviceXml codec;
    ASSERT_TRUE(reads(codec, golden("ptz/RS485DeviceXml.document.xml")));
    expectPort(samplePort(), codec.getRS485Device());
}

TEST(RS485DeviceXml, LeavesWhatIsMissing)
{
    RS485DeviceXml codec;
    codec.setRS485Device(samplePort());
    ASSERT_TRUE(reads(codec, "<RS485Device />"));
    expectPort(samplePort(), codec.getRS485Device());
}

TEST(RS485DeviceXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(RS485DeviceXml().createXmlString(samplePort(), text));
    EXPECT_TRUE(matchesGolden(text, "ptz/RS485DeviceXml.node.xml"));
}

TEST(RS485DeviceXml, ReadsNodes)
{
    RS485Device read;
    ASSERT_TRUE(RS485DeviceXml().parseXmlString(golden("ptz/RS485DeviceXml.node.xml"), read));
    expectPort(samplePort(), read);
}

TEST(RS485DeviceXml, ResetsWhatANodeLacks)
{
    CapturedOutput output;
    RS485Device read = samplePort();
    ASSERT_TRUE(RS485DeviceXml().parseXmlString("<RS485Device />", read));
    expectPort(RS485Device(), read);
    EXPECT_EQ("", output.text());
}

TEST(RS485DeviceXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    RS485Device read = samplePort();
    std::vector<RS485Device> list(1, samplePort());
    EXPECT_FALSE(RS485DeviceXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(RS485DeviceXml().createDomainXmlNode(list, empty));
    EXPECT_FALSE(RS485DeviceXml().parseDomainXmlNode(empty, read));
    EXPECT_FALSE(RS485DeviceXml().parseDomainXmlNode(empty, list));
    expectPort(samplePort(), read);
    EXPECT_EQ(1U, list.size());
}

TEST(RS485DeviceXml, WritesLists)
{
    SafePointer<DomainXmlNode> node(new DomainXmlNode("Ports"));
    ASSERT_TRUE(RS485DeviceXml().createDomainXmlNode({samplePort(), samplePort()}, node));
    ASSERT_TRUE(RS485DeviceXml().createDomainXmlNode(std::vector<RS485Device>(), node));
    std::string text;
    ASSERT_TRUE(DomainXmlNode::toString(node, text));
    const std::string item = "\t" + golden("ptz/RS485DeviceXml.node.xml");
    EXPECT_EQ("<Ports>\n" + item + item + "</Ports>\n", text);
}

TEST(RS485DeviceXml, ReadsListsOfAnyNameBehindWhatTheyHold)
{
    SafePointer<DomainXmlNode> node;
    std::vector<RS485Device> list(1, samplePort());
    ASSERT_TRUE(
        DomainXmlNode::parse("<Ports>text<!-- --><RS485Device ComId='2' /><Other ComName='b' /></Ports>", node));
    ASSERT_TRUE(RS485DeviceXml().parseDomainXmlNode(node, list));
    ASSERT_EQ(3U, list.size());
    expectPort(samplePort(), list[0]);
    EXPECT_EQ(2, list[1].getComId());
    EXPECT_EQ("b", list[2].getComName());
    EXPECT_EQ(0, list[2].getComId());
}
