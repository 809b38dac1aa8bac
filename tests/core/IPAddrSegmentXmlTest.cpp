#include "core/IPAddrSegmentXml.h"

#include "tests/support/Documents.h"

namespace
{

bool readsSegment(const std::string& text, IPAddrSegment& segment)
{
    SafePointer<DomainXmlNode> node;
    EXPECT_TRUE(DomainXmlNode::parse(text, node));
    return IPAddrSegmentXml().parseXmlString(node, segment);
}

} // namespace

TEST(IPAddrSegmentXml, WritesAChild)
{
    IPAddrSegment segment;
    segment.setIPProVer(4);
    segment.setBeginIP("192.0.2.1");
    segment.setEndIP("192.0.2.99");
    SafePointer<DomainXmlNode> parent(new DomainXmlNode("Parent"));
    ASSERT_TRUE(IPAddrSegmentXml().createXmlString(segment, parent));
    std::string text;
    ASSERT_TRUE(DomainXmlNode::toString(parent, text));
    EXPECT_TRUE(matchesGolden(text, "core/IPAddrSegmentXml.node.xml"));
}

TEST(IPAddrSegmentXml, ReadsTheSegmentItself)
{
    SafePointer<DomainXmlNode> parent;
    SafePointer<DomainXmlNode> node;
    ASSERT_TRUE(DomainXmlNode::parse(golden("core/IPAddrSegmentXml.node.xml"), parent));
    ASSERT_TRUE(parent->getConfigNode("IPAddrSegment", node));
    IPAddrSegment segment;
    ASSERT_TRUE(IPAddrSegmentXml().parseXmlString(node, segment));
    EXPECT_EQ(4, segment.getIPProVer());
    EXPECT_EQ("192.0.2.1", segment.getBeginIP());
    EXPECT_EQ("192.0.2.99", segment.getEndIP());
}

TEST(IPAddrSegmentXml, StopsAtTheFirstMissingProperty)
{
    IPAddrSegment segment;
    segment.setBeginIP("old");
    segment.setEndIP("old");
    EXPECT_FALSE(readsSegment("<IPAddrSegment IPProtoVer='6' EndIP='new' />", segment));
    EXPECT_EQ(6, segment.getIPProVer());
    EXPECT_EQ("old", segment.getBeginIP());
    EXPECT_EQ("old", segment.getEndIP());

    EXPECT_FALSE(readsSegment("<IPAddrSegment IPProtoVer='4' BeginIP='new' />", segment));
    EXPECT_EQ(4, segment.getIPProVer());
    EXPECT_EQ("new", segment.getBeginIP());
    EXPECT_EQ("old", segment.getEndIP());

    EXPECT_FALSE(readsSegment("<IPAddrSegment BeginIP='newer' EndIP='newer' />", segment));
    EXPECT_EQ("new", segment.getBeginIP());
}

TEST(IPAddrSegmentXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    IPAddrSegment segment;
    EXPECT_FALSE(IPAddrSegmentXml().createXmlString(segment, empty));
    EXPECT_FALSE(IPAddrSegmentXml().parseXmlString(empty, segment));
}
