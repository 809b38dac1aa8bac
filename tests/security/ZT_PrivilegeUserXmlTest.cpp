#include "security/ZT_PrivilegeUserXml.h"

#include "tests/support/Documents.h"

#include <limits>

namespace
{

ZT_PrivilegeUser sample()
{
    ZT_PrivilegeUser user;
    user.setUserId(7);
    user.setUserName("operator");
    user.setPassword("not told");
    user.setGroupId(2);
    user.setLockFlag(true);
    user.setLockTime(3600);
    user.setMultiLoginFlag(false);
    user.setDesc("Day shift");
    return user;
}

void expectUser(const ZT_PrivilegeUser& expected, const ZT_PrivilegeUser& user)
{
    EXPECT_EQ(expected.getUserId(), user.getUserId());
    EXPECT_EQ(expected.getUserName(), user.getUserName());
    EXPECT_TRUE(expected.getPassword() == user.getPassword()); // without the texts
    EXPECT_EQ(expected.getGroupId(), user.getGroupId());
    EXPECT_EQ(expected.getLockFlag(), user.getLockFlag());
    EXPECT_EQ(expected.getLockTime(), user.getLockTime());
    EXPECT_EQ(expected.getMultiLoginFlag(), user.getMultiLoginFlag());
    EXPECT_EQ(expected.getDesc(), user.getDesc());
}

ZT_PrivilegeUser other()
{
    ZT_PrivilegeUser user;
    user.setUserId(8);
    user.setMultiLoginFlag(true);
    return user;
}

} // namespace

TEST(ZT_PrivilegeUserXml, Writes)
{
    ZT_PrivilegeUserXml codec;
    codec.setPrivilegeUserList({sample(), other()});
    EXPECT_TRUE(matchesGolden(written(codec), "security/ZT_PrivilegeUserXml.document.xml"));
}

TEST(ZT_PrivilegeUserXml, WritesAnEmptyList)
{
    ZT_PrivilegeUserXml codec;
    EXPECT_EQ("<ZT_PrivilegeUserList />\n", written(codec));
}

TEST(ZT_PrivilegeUserXml, ReadsBehindWhatTheListHolds)
{
    ZT_PrivilegeUserXml codec;
    codec.setPrivilegeUserList({other()});
    ASSERT_TRUE(reads(codec, golden("security/ZT_PrivilegeUserXml.document.xml")));
    ASSERT_EQ(3U, codec.getPrivilegeUserList().size());
    expectUser(other(), codec.getPrivilegeUserList()[0]);
    expectUser(sample(), codec.getPrivilegeUserList()[1]);
    expectUser(other(), codec.getPrivilegeUserList()[2]);
}

TEST(ZT_PrivilegeUserXml, WalksOnFromTheFirstUserOverElementsOfAnyName)
{
    ZT_PrivilegeUserXml codec;
    ASSERT_TRUE(reads(
        codec,
        "<ZT_PrivilegeUserList>text<!--ZT_PrivilegeUser--><Other ZT_UserId='1' /><ZT_PrivilegeUser ZT_UserId='2' />"
        "<!-- -->text<Other ZT_UserId='3' /></ZT_PrivilegeUserList>"));
    ASSERT_EQ(2U, codec.getPrivilegeUserList().size());
    EXPECT_EQ(2, codec.getPrivilegeUserList()[0].getUserId());
    EXPECT_EQ(3, codec.getPrivilegeUserList()[1].getUserId());
}

TEST(ZT_PrivilegeUserXml, GivesANewUserForOneWithoutAttributes)
{
    ZT_PrivilegeUserXml codec;
    ASSERT_TRUE(reads(codec, "<ZT_PrivilegeUserList><ZT_PrivilegeUser /></ZT_PrivilegeUserList>"));
    ASSERT_EQ(1U, codec.getPrivilegeUserList().size());
    expectUser(ZT_PrivilegeUser(), codec.getPrivilegeUserList()[0]);
}

TEST(ZT_PrivilegeUserXml, DoesNotKnowTheGroupByItsWholeName)
{
    CapturedOutput output;
    ZT_PrivilegeUserXml codec;
    ASSERT_TRUE(reads(codec, "<ZT_PrivilegeUserList><ZT_PrivilegeUser ZT_GroupId='5' /></ZT_PrivilegeUserList>"));
    EXPECT_EQ(0, codec.getPrivilegeUserList().at(0).getGroupId());
    EXPECT_EQ("", output.text());
}

TEST(ZT_PrivilegeUserXml, CarriesTheHighestLockTimeAsASignedNumber)
{
    ZT_PrivilegeUser locked;
    locked.setLockTime(4294967295UL);
    ZT_PrivilegeUserXml codec;
    codec.setPrivilegeUserList({locked});
    const std::string text = written(codec);
    EXPECT_NE(std::string::npos, text.find("ZT_LockTime=\"-1\""));

    ZT_PrivilegeUserXml reader;
    ASSERT_TRUE(reads(reader, text));
    EXPECT_EQ(std::numeric_limits<unsigned long>::max(), reader.getPrivilegeUserList().at(0).getLockTime());
}

TEST(ZT_PrivilegeUserXml, ReadsAListOfTheDocumentFormInTheNodeForm)
{
    ZT_PrivilegeUserXml codec;
    codec.setPrivilegeUserList({sample(), other()});
    std::vector<ZT_PrivilegeUser> list;
    ASSERT_TRUE(ZT_PrivilegeUserXml().parseXmlString(written(codec), list));
    ASSERT_EQ(2U, list.size());
    expectUser(sample(), list[0]);
    expectUser(other(), list[1]);
}

TEST(ZT_PrivilegeUserXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(ZT_PrivilegeUserXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "security/ZT_PrivilegeUserXml.node.xml"));
}

TEST(ZT_PrivilegeUserXml, ReadsNodes)
{
    ZT_PrivilegeUser read;
    ASSERT_TRUE(ZT_PrivilegeUserXml().parseXmlString(golden("security/ZT_PrivilegeUserXml.node.xml"), read));
    expectUser(sample(), read);
}

TEST(ZT_PrivilegeUserXml, PrintsALineForEachValueThatANodeLacks)
{
    CapturedOutput output;
    ZT_PrivilegeUser read = sample();
    ASSERT_TRUE(ZT_PrivilegeUserXml().parseXmlString("<ZT_PrivilegeUser />", read));
    expectUser(ZT_PrivilegeUser(), read);
    EXPECT_EQ("PrivilegeUserXml::parseDomainXmlNode get UserId failed \n"
              "PrivilegeUserXml::parseDomainXmlNode get UserName failed \n"
              "PrivilegeUserXml::parseDomainXmlNode get Password failed \n"
              "PrivilegeUserXml::parseDomainXmlNode get GroupId failed \n"
              "PrivilegeUserXml::parseDomainXmlNode get LockFlag failed \n"
              "PrivilegeUserXml::parseDomainXmlNode get LockTime failed \n"
              "PrivilegeUserXml::parseDomainXmlNode get MultiLoginFlag failed \n"
              "PrivilegeUserXml::parseDomainXmlNode get Desc failed \n",
              output.text());
}

TEST(ZT_PrivilegeUserXml, WritesLists)
{
    std::string text;
    ASSERT_TRUE(ZT_PrivilegeUserXml().createXmlString({sample(), other()}, text));
    EXPECT_TRUE(matchesGolden(text, "security/ZT_PrivilegeUserXml.list.xml"));
    ASSERT_TRUE(ZT_PrivilegeUserXml().createXmlString(std::vector<ZT_PrivilegeUser>(), text));
    EXPECT_EQ("<ZT_PrivilegeUserList />\n", text);
}

TEST(ZT_PrivilegeUserXml, ReadsListsBehindWhatTheyHold)
{
    std::vector<ZT_PrivilegeUser> list(1, sample());
    ASSERT_TRUE(ZT_PrivilegeUserXml().parseXmlString(golden("security/ZT_PrivilegeUserXml.list.xml"), list));
    ASSERT_EQ(3U, list.size());
    expectUser(sample(), list[0]);
    expectUser(sample(), list[1]);
    expectUser(other(), list[2]);
}

TEST(ZT_PrivilegeUserXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    ZT_PrivilegeUser read = sample();
    std::vector<ZT_PrivilegeUser> list(1, sample());
    EXPECT_FALSE(ZT_PrivilegeUserXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(ZT_PrivilegeUserXml().createDomainXmlNode(list, empty));
    EXPECT_FALSE(ZT_PrivilegeUserXml().parseDomainXmlNode(empty, read));
    EXPECT_FALSE(ZT_PrivilegeUserXml().parseDomainXmlNode(empty, list));
    expectUser(sample(), read);
    EXPECT_EQ(1U, list.size());
}

TEST(ZT_PrivilegeUserXml, RefusesTheRootOfTheOtherKind)
{
    ZT_PrivilegeUser read;
    std::vector<ZT_PrivilegeUser> list;
    EXPECT_FALSE(ZT_PrivilegeUserXml().parseXmlString(golden("security/ZT_PrivilegeUserXml.list.xml"), read));
    EXPECT_FALSE(ZT_PrivilegeUserXml().parseXmlString(golden("security/ZT_PrivilegeUserXml.node.xml"), list));
    EXPECT_TRUE(list.empty());
}

TEST(ZT_PrivilegeUserXml, PassesOverItemsOfOtherNamesInANode)
{
    CapturedOutput output;
    std::vector<ZT_PrivilegeUser> list;
    ASSERT_TRUE(ZT_PrivilegeUserXml().parseXmlString("<ZT_PrivilegeUserList><Other /></ZT_PrivilegeUserList>", list));
    EXPECT_TRUE(list.empty());
    EXPECT_EQ("", output.text());
}

TEST(ZT_PrivilegeUserXml, CarriesTheHighestLockTimeWholeInANode)
{
    ZT_PrivilegeUser locked;
    locked.setLockTime(4294967295UL);
    std::string text;
    ASSERT_TRUE(ZT_PrivilegeUserXml().createXmlString(locked, text));
    EXPECT_NE(std::string::npos, text.find("ZT_LockTime=\"4294967295\""));
    ZT_PrivilegeUser read;
    ASSERT_TRUE(ZT_PrivilegeUserXml().parseXmlString(text, read));
    EXPECT_EQ(4294967295UL, read.getLockTime());
}

TEST(ZT_PrivilegeUserXml, PrintsTheLineOfTheGroupForItsWholeName)
{
    CapturedOutput output;
    ZT_PrivilegeUser read = sample();
    ASSERT_TRUE(ZT_PrivilegeUserXml().parseXmlString(
        "<ZT_PrivilegeUser ZT_UserId='1' ZT_UserName='' ZT_Password='' ZT_GroupId='5' "
        "ZT_LockFlag='1' ZT_LockTime='1' ZT_MultiLoginFlag='1' ZT_Desc='' />",
        read));
    EXPECT_EQ(0, read.getGroupId());
    EXPECT_EQ("PrivilegeUserXml::parseDomainXmlNode get GroupId failed \n", output.text());
}
