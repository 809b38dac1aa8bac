#include "security/PrivilegeXml.h"

#include "tests/support/Documents.h"

namespace
{

Privilege privilege(int groupId, const std::vector<std::string>& rights)
{
    Privilege privilege;
    privilege.setGroupId(groupId);
    privilege.getPrivileges() = rights;
    return privilege;
}

Privilege sample()
{
    return privilege(3, {"Preview", "Playback", "Set up, and more"});
}

void expectPrivilege(const Privilege& expected, const Privilege& privilege)
{
    EXPECT_EQ(expected.getGroupId(), privilege.getGroupId());
    EXPECT_EQ(expected.getPrivileges(), privilege.getPrivileges());
}

} // namespace

TEST(PrivilegeXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(PrivilegeXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "security/PrivilegeXml.node.xml"));
}

TEST(PrivilegeXml, ReadsNodesInPlaceOfWhatTheRecordHeld)
{
    Privilege read = privilege(9, {"before"});
    ASSERT_TRUE(PrivilegeXml().parseXmlString(golden("security/PrivilegeXml.node.xml"), read));
    expectPrivilege(sample(), read);
}

TEST(PrivilegeXml, LeavesTheRecordOfANodeWithoutItsGroup)
{
    CapturedOutput output;
    Privilege read = sample();
    EXPECT_FALSE(PrivilegeXml().parseXmlString("<Privilege><PrivilegeString String='x' /></Privilege>", read));
    expectPrivilege(sample(), read);
    EXPECT_EQ("", output.text());
}

TEST(PrivilegeXml, EmptiesTheRightsForANodeWithoutChildren)
{
    Privilege read = sample();
    ASSERT_TRUE(PrivilegeXml().parseXmlString("<Privilege GroupId='4'>text<!-- --></Privilege>", read));
    expectPrivilege(privilege(4, {}), read);
}

TEST(PrivilegeXml, TakesEveryChildForARight)
{
    CapturedOutput output;
    Privilege read;
    ASSERT_TRUE(PrivilegeXml().parseXmlString(
        "<Privilege GroupId='4'><Other String='a' /><!-- --><PrivilegeString />text<Other String='' /></Privilege>",
        read));
    expectPrivilege(privilege(4, {"a", "", ""}), read);
    EXPECT_EQ("", output.text());
}

TEST(PrivilegeXml, WritesLists)
{
    SafePointer<DomainXmlNode> list(new DomainXmlNode("PrivilegeList"));
    ASSERT_TRUE(PrivilegeXml().createDomainXmlNode({sample(), privilege(4, {})}, list));
    std::string text;
    ASSERT_TRUE(DomainXmlNode::toString(list, text));
    EXPECT_TRUE(matchesGolden(text, "security/PrivilegeXml.list.xml"));
}

TEST(PrivilegeXml, ReadsListsBehindWhatTheyHold)
{
    SafePointer<DomainXmlNode> node;
    ASSERT_TRUE(DomainXmlNode::parse(golden("security/PrivilegeXml.list.xml"), node));
    std::vector<Privilege> list(1, privilege(9, {"before"}));
    ASSERT_TRUE(PrivilegeXml().parseDomainXmlNode(node, list));
    ASSERT_EQ(3U, list.size());
    expectPrivilege(privilege(9, {"before"}), list[0]);
    expectPrivilege(sample(), list[1]);
    expectPrivilege(privilege(4, {}), list[2]);
}

TEST(PrivilegeXml, EndsAListAtAnItemWithoutItsGroup)
{
    SafePointer<DomainXmlNode> node;
    ASSERT_TRUE(DomainXmlNode::parse("<L><Privilege GroupId='1' /><Privilege /><Privilege GroupId='3' /></L>", node));
    std::vector<Privilege> list;
    EXPECT_FALSE(PrivilegeXml().parseDomainXmlNode(node, list));
    ASSERT_EQ(1U, list.size());
    expectPrivilege(privilege(1, {}), list[0]);
}

TEST(PrivilegeXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    Privilege read = sample();
    std::vector<Privilege> list(1, sample());
    EXPECT_FALSE(PrivilegeXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(PrivilegeXml().createDomainXmlNode(list, empty));
    EXPECT_FALSE(PrivilegeXml().parseDomainXmlNode(empty, read));
    EXPECT_FALSE(PrivilegeXml().parseDomainXmlNode(empty, list));
    expectPrivilege(sample(), read);
    EXPECT_EQ(1U, list.size());
}
