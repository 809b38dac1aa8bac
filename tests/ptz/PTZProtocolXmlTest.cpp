#include "ptz/PTZProtocolXml.h"

#include "tests/support/Documents.h"

namespace
{

PTZProtocol protocol(int id, const std::string& name)
{
    PTZProtocol protocol;
    protocol.setProtocolId(id);
    protocol.setProtocolName(name);
    return protocol;
}

PTZProtocol sample()
{
    return protocol(7, "Dome");
}

void expectProtocol(const PTZProtocol& expected, const PTZProtocol& protocol)
{
    EXPECT_EQ(expected.getProtocolId(), protocol.getProtocolId());
    EXPECT_EQ(expected.getProtocolName(), protocol.getProtocolName());
}

} // namespace

TEST(PTZProtocolXml, Writes)
{
    PTZProtocolXml codec;
    codec.setPTZProtocol(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "ptz/PTZProtocolXml.document.xml"));
}

TEST(PTZProtocolXml, Reads)
{
    PTZProtocolXml codec;
    ASSERT_TRUE(reads(codec, golden("ptz/PTZProtocolXml.document.xml")));
    expectProtocol(sample(), codec.getPTZProtocol());
}

TEST(PTZProtocolXml, ResetsWhatIsMissing)
{
    CapturedOutput output;
    PTZProtocolXml codec;
    codec.setPTZProtocol(sample());
    ASSERT_TRUE(reads(codec, "<PTZProtocol />"));
    expectProtocol(PTZProtocol(), codec.getPTZProtocol());
    EXPECT_EQ("", output.text());
}

TEST(PTZProtocolXml, WritesLists)
{
    std::string text;
    ASSERT_TRUE(PTZProtocolXml().createXmlString({sample(), protocol(8, "")}, text));
    EXPECT_TRUE(matchesGolden(text, "ptz/PTZProtocolXml.list.xml"));
    ASSERT_TRUE(PTZProtocolXml().createXmlString(std::vector<PTZProtocol>(), text));
    EXPECT_EQ("<PTZProtocolList />\n", text);
}

TEST(PTZProtocolXml, EmptiesTheNodeThatItWritesTo)
{
    SafePointer<DomainXmlNode> node;
    ASSERT_TRUE(DomainXmlNode::parse("<PTZProtocolList Old='1'><Child /></PTZProtocolList>", node));
    ASSERT_TRUE(PTZProtocolXml().createDomainXmlNode(std::vector<PTZProtocol>(), node));
    std::string text;
    ASSERT_TRUE(DomainXmlNode::toString(node, text));
    EXPECT_EQ("<PTZProtocolList Old=\"1\" />\n", text);
}

TEST(PTZProtocolXml, ReadsListsBehindWhatTheyHold)
{
    CapturedOutput output;
    std::vector<PTZProtocol> list(1, protocol(9, "before"));
    ASSERT_TRUE(PTZProtocolXml().parseXmlString(golden("ptz/PTZProtocolXml.list.xml"), list));
    ASSERT_EQ(3U, list.size());
    expectProtocol(protocol(9, "before"), list[0]);
    expectProtocol(sample(), list[1]);
    expectProtocol(protocol(8, ""), list[2]);
    EXPECT_EQ("", output.text());
}

TEST(PTZProtocolXml, PrintsALineForEveryMissingProperty)
{
    CapturedOutput output;
    std::vector<PTZProtocol> list;
    ASSERT_TRUE(PTZProtocolXml().parseXmlString(
        "<PTZProtocolList><Other ProtocolName='Any' /><!-- -->text<PTZProtocol ProtocolId='2' /></PTZProtocolList>",
        list));
    EXPECT_EQ("PTZProtocolXml::parseDomainXmlNode node = ATTR_PROTOCOL_ID failed \n"
              "PTZProtocolXml::parseDomainXmlNode node = ATTR_PROTOCOL_NAME failed \n",
              output.text());
    ASSERT_EQ(2U, list.size());
    expectProtocol(protocol(0, "Any"), list[0]);
    expectProtocol(protocol(2, ""), list[1]);
}

TEST(PTZProtocolXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    std::vector<PTZProtocol> list(1, sample());
    EXPECT_FALSE(PTZProtocolXml().createDomainXmlNode(list, empty));
    EXPECT_FALSE(PTZProtocolXml().parseDomainXmlNode(empty, list));
    EXPECT_EQ(1U, list.size());
}
