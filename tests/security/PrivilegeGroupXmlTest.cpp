#include "security/PrivilegeGroupXml.h"

#include "tests/support/Documents.h"

namespace
{

PrivilegeGroup sample()
{
    PrivilegeGroup group;
    group.setGroupId(3);
    group.setGroupName("Guards");
    group.setDesc("At the gate");
    return group;
}

void expectGroup(const PrivilegeGroup& expected, const PrivilegeGroup& group)
{
    EXPECT_EQ(expected.getGroupId(), group.getGroupId());
    EXPECT_EQ(expected.getGroupName(), group.getGroupName());
    EXPECT_EQ(expected.getDesc(), group.getDesc());
}

} // namespace

TEST(PrivilegeGroupXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(PrivilegeGroupXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "security/PrivilegeGroupXml.node.xml"));
}

TEST(PrivilegeGroupXml, ReadsNodes)
{
    PrivilegeGroup read;
    ASSERT_TRUE(PrivilegeGroupXml().parseXmlString(golden("security/PrivilegeGroupXml.node.xml"), read));
    expectGroup(sample(), read);
}

TEST(PrivilegeGroupXml, PrintsALineForEachValueThatANodeLacks)
{
    CapturedOutput output;
    PrivilegeGroup read = sample();
    ASSERT_TRUE(PrivilegeGroupXml().parseXmlString("<PrivilegeGroup />", read));
    expectGroup(PrivilegeGroup(), read);
    EXPECT_EQ("PrivilegeGroupXml::parseDomainXmlNode get GroupId failed \n"
              "PrivilegeGroupXml::parseDomainXmlNode get GroupName failed \n"
              "PrivilegeGroupXml::parseDomainXmlNode get Desc failed \n",
              output.text());
}

TEST(PrivilegeGroupXml, WritesLists)
{
    std::string text;
    ASSERT_TRUE(PrivilegeGroupXml().createXmlString({sample(), PrivilegeGroup()}, text));
    EXPECT_TRUE(matchesGolden(text, "security/PrivilegeGroupXml.list.xml"));
    ASSERT_TRUE(PrivilegeGroupXml().createXmlString(std::vector<PrivilegeGroup>(), text));
    EXPECT_EQ("<PrivilegeGroupList />\n", text);
}

TEST(PrivilegeGroupXml, ReadsListsBehindWhatTheyHold)
{
    std::vector<PrivilegeGroup> list(1, sample());
    ASSERT_TRUE(PrivilegeGroupXml().parseXmlString(golden("security/PrivilegeGroupXml.list.xml"), list));
    ASSERT_EQ(3U, list.size());
    expectGroup(sample(), list[0]);
    expectGroup(sample(), list[1]);
    expectGroup(PrivilegeGroup(), list[2]);
}

TEST(PrivilegeGroupXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    PrivilegeGroup read = sample();
    std::vector<PrivilegeGroup> list(1, sample());
    EXPECT_FALSE(PrivilegeGroupXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(PrivilegeGroupXml().createDomainXmlNode(list, empty));
    EXPECT_FALSE(PrivilegeGroupXml().parseDomainXmlNode(empty, read));
    EXPECT_FALSE(PrivilegeGroupXml().parseDomainXmlNode(empty, list));
    expectGroup(sample(), read);
    EXPECT_EQ(1U, list.size());
}

TEST(PrivilegeGroupXml, RefusesTheRootOfTheOtherKind)
{
    PrivilegeGroup read;
    std::vector<PrivilegeGroup> list;
    EXPECT_FALSE(PrivilegeGroupXml().parseXmlString(golden("security/PrivilegeGroupXml.list.xml"), read));
    EXPECT_FALSE(PrivilegeGroupXml().parseXmlString(golden("security/PrivilegeGroupXml.node.xml"), list));
    EXPECT_TRUE(list.empty());
}

TEST(PrivilegeGroupXml, PrintsNothingForWhatTheTextOfAListLacks)
{
    CapturedOutput output;
    std::vector<PrivilegeGroup> list;
    ASSERT_TRUE(
        PrivilegeGroupXml().parseXmlString("<PrivilegeGroupList>text<!-- --><Other /></PrivilegeGroupList>", list));
    ASSERT_EQ(1U, list.size());
    expectGroup(PrivilegeGroup(), list[0]);
    EXPECT_EQ("", output.text());
}

TEST(PrivilegeGroupXml, PrintsLinesForWhatTheNodeOfAListLacks)
{
    CapturedOutput output;
    SafePointer<DomainXmlNode> node;
    ASSERT_TRUE(DomainXmlNode::parse("<PrivilegeGroupList><Other GroupId='4' /></PrivilegeGroupList>", node));
    std::vector<PrivilegeGroup> list(1, sample());
    ASSERT_TRUE(PrivilegeGroupXml().parseDomainXmlNode(node, list));
    ASSERT_EQ(2U, list.size());
    EXPECT_EQ(4, list[1].getGroupId());
    EXPECT_EQ("PrivilegeGroupXml::parseDomainXmlNode get GroupName failed \n"
              "PrivilegeGroupXml::parseDomainXmlNode get Desc failed \n",
              output.text());
}
