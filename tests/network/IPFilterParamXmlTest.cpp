#include "network/IPFilterParamXml.h"

#include "tests/support/Documents.h"

namespace
{

IPAddrSegment segment(int ipProtoVer, const std::string& begin, const std::string& end)
{
    IPAddrSegment segment;
    segment.setIPProVer(ipProtoVer);
    segment.setBeginIP(begin);
    segment.setEndIP(end);
    return segment;
}

IPFilterParam sample()
{
    IPFilterParam param;
    param.setEnableFlag(true);
    param.setFilterType(2);
    param.setIPAddrList({segment(4, "192.0.2.1", "192.0.2.99"), segment(6, "2001:db8::1", "2001:db8::2")});
    return param;
}

void expectSegments(const std::vector<IPAddrSegment>& expected, const std::vector<IPAddrSegment>& segments)
{
    ASSERT_EQ(expected.size(), segments.size());
    for (std::size_t number = 0; number < segments.size(); ++number)
    {
        EXPECT_EQ(expected[number].getIPProVer(), segments[number].getIPProVer());
        EXPECT_EQ(expected[number].getBeginIP(), segments[number].getBeginIP());
        EXPECT_EQ(expected[number].getEndIP(), segments[number].getEndIP());
    }
}

void expectParam(const IPFilterParam& expected, const IPFilterParam& param)
{
    EXPECT_EQ(expected.getEnableFlag(), param.getEnableFlag());
    EXPECT_EQ(expected.getFilterType(), param.getFilterType());
    expectSegments(expected.getIPAddrList(), param.getIPAddrList());
}

constexpr char segments[] = "<IPAddrSegmentList>text<Other IPProtoVer='1' BeginIP='a' EndIP='b' /><!--IPAddrSegment-->"
                            "<IPAddrSegment IPProtoVer='2' BeginIP='c' EndIP='d' />"
                            "<IPAddrSegment BeginIP='e' EndIP='f' />"
                            "<IPAddrSegment IPProtoVer='3' EndIP='g' />"
                            "<IPAddrSegment IPProtoVer='4' BeginIP='h' />"
                            "<IPAddrSegment IPProtoVer='' BeginIP='' EndIP='' /></IPAddrSegmentList>";

} // namespace

TEST(IPFilterParamXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(IPFilterParamXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "network/IPFilterParamXml.node.xml"));
}

TEST(IPFilterParamXml, ReadsNodes)
{
    CapturedOutput output;
    IPFilterParam read;
    ASSERT_TRUE(IPFilterParamXml().parseXmlString(golden("network/IPFilterParamXml.node.xml"), read));
    expectParam(sample(), read);
    EXPECT_EQ("", output.text());
}

TEST(IPFilterParamXml, WritesAndReadsAnEmptyList)
{
    std::string text;
    ASSERT_TRUE(IPFilterParamXml().createXmlString(IPFilterParam(), text));
    EXPECT_EQ("<IPFilterParam EnableFlag=\"false\" FilterType=\"0\">\n\t<IPAddrSegmentList />\n</IPFilterParam>\n",
              text);

    IPFilterParam read = sample();
    ASSERT_TRUE(IPFilterParamXml().parseXmlString(text, read));
    expectParam(IPFilterParam(), read);
}

TEST(IPFilterParamXml, StopsAtTheFirstMissingPart)
{
    CapturedOutput output;
    IPFilterParam read = sample();
    IPFilterParam expected = sample();
    EXPECT_FALSE(
        IPFilterParamXml().parseXmlString("<IPFilterParam FilterType='7'><IPAddrSegmentList /></IPFilterParam>", read));
    expectParam(expected, read);

    EXPECT_FALSE(IPFilterParamXml().parseXmlString(
        "<IPFilterParam EnableFlag='false'><IPAddrSegmentList /></IPFilterParam>", read));
    expected.setEnableFlag(false);
    expectParam(expected, read);

    EXPECT_FALSE(IPFilterParamXml().parseXmlString("<IPFilterParam EnableFlag='true' FilterType='7' />", read));
    expected.setEnableFlag(true);
    expected.setFilterType(7);
    expectParam(expected, read);
    EXPECT_EQ("", output.text());
}

TEST(IPFilterParamXml, PassesOverSegmentsThatLackAProperty)
{
    CapturedOutput output;
    IPFilterParam read = sample();
    ASSERT_TRUE(IPFilterParamXml().parseXmlString(
        std::string("<IPFilterParam EnableFlag='true' FilterType='2'>") + segments + "</IPFilterParam>", read));
    IPFilterParam expected = sample();
    expected.setIPAddrList({segment(2, "c", "d"), segment(0, "", "")});
    expectParam(expected, read);
    EXPECT_EQ("", output.text());
}

TEST(IPFilterParamXml, ReadsSegmentsBehindWhatTheListHolds)
{
    SafePointer<DomainXmlNode> node;
    ASSERT_TRUE(DomainXmlNode::parse(segments, node));
    std::vector<IPAddrSegment> list = {segment(1, "before", "after")};
    ASSERT_TRUE(IPFilterParamXml().parseIPAddrList(node, list));
    expectSegments({segment(1, "before", "after"), segment(2, "c", "d"), segment(0, "", "")}, list);
}

TEST(IPFilterParamXml, ReadsASegment)
{
    SafePointer<DomainXmlNode> node;
    IPAddrSegment read;
    ASSERT_TRUE(DomainXmlNode::parse("<Any IPProtoVer='4' BeginIP='a' EndIP='b' />", node));
    ASSERT_TRUE(IPFilterParamXml().parseIPAddr(node, read));
    expectSegments({segment(4, "a", "b")}, {read});

    ASSERT_TRUE(DomainXmlNode::parse("<Any IPProtoVer='6' EndIP='c' />", node));
    EXPECT_FALSE(IPFilterParamXml().parseIPAddr(node, read));
}

TEST(IPFilterParamXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    SafePointer<DomainXmlNode> hollow(new DomainXmlNode(static_cast<TiXmlElement*>(nullptr)));
    IPAddrSegment read = segment(1, "a", "b");
    std::vector<IPAddrSegment> list(1, read);
    EXPECT_FALSE(IPFilterParamXml().parseIPAddrList(empty, list));
    EXPECT_FALSE(IPFilterParamXml().parseIPAddrList(hollow, list));
    EXPECT_FALSE(IPFilterParamXml().parseIPAddr(empty, read));
    EXPECT_FALSE(IPFilterParamXml().parseIPAddr(hollow, read));
    expectSegments({segment(1, "a", "b")}, list);
}
