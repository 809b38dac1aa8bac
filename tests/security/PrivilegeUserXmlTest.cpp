#include "security/PrivilegeUserXml.h"

#include "tests/support/Documents.h"

#include <limits>

namespace
{

PrivilegeUser sample()
{
    PrivilegeUser user;
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

void expectUser(const PrivilegeUser& expected, const PrivilegeUser& user)
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

PrivilegeUser other()
{
    PrivilegeUser user;
    user.setUserId(8);
    user.setMultiLoginFlag(true);
    return user;
}

} // namespace

TEST(PrivilegeUserXml, Writes)
{
    PrivilegeUserXml codec;
    codec.setPrivilegeUserList({sample(), other()});
    EXPECT_TRUE(matchesGolden(written(codec), "security/PrivilegeUserXml.document.xml"));
}

TEST(PrivilegeUserXml, WritesAnEmptyList)
{
    PrivilegeUserXml codec;
    EXPECT_EQ("<PrivilegeUserList />\n", written(codec));
}

TEST(PrivilegeUserXml, ReadsBehindWhatTheListHolds)
{
    PrivilegeUserXml codec;
    codec.setPrivilegeUserList({other()});
    ASSERT_TRUE(reads(codec, golden("security/PrivilegeUserXml.document.xml")));
    ASSERT_EQ(3U, codec.getPrivilegeUserList().size());
    expectUser(other(), codec.getPrivilegeUserList()[0]);
    expectUser(sample(), codec.getPrivilegeUserList()[1]);
    expectUser(other(), codec.getPrivilegeUserList()[2]);
}

TEST(PrivilegeUserXml, WalksOnFromTheFirstUserOverElementsOfAnyName)
{
    PrivilegeUserXml codec;
    ASSERT_TRUE(reads(codec,
                      "<PrivilegeUserList>text<!--PrivilegeUser--><Other UserId='1' /><PrivilegeUser UserId='2' />"
                      "<!-- -->text<Other UserId='3' /></PrivilegeUserList>"));
    ASSERT_EQ(2U, codec.getPrivilegeUserList().size());
    EXPECT_EQ(2, codec.getPrivilegeUserList()[0].getUserId());
    EXPECT_EQ(3, codec.getPrivilegeUserList()[1].getUserId());
}

TEST(PrivilegeUserXml, GivesANewUserForOneWithoutAttributes)
{
    PrivilegeUserXml codec;
    ASSERT_TRUE(reads(codec, "<PrivilegeUserList><PrivilegeUser /></PrivilegeUserList>"));
    ASSERT_EQ(1U, codec.getPrivilegeUserList().size());
    expectUser(PrivilegeUser(), codec.getPrivilegeUserList()[0]);
}

TEST(PrivilegeUserXml, DoesNotKnowTheGroupByItsWholeName)
{
    CapturedOutput output;
    PrivilegeUserXml codec;
    ASSERT_TRUE(reads(codec, "<PrivilegeUserList><PrivilegeUser GroupId='5' /></PrivilegeUserList>"));
    EXPECT_EQ(0, codec.getPrivilegeUserList().at(0).getGroupId());
    EXPECT_EQ("", output.text());
}

TEST(PrivilegeUserXml, CarriesTheHighestLockTimeAsASignedNumber)
{
    PrivilegeUser locked;
    locked.setLockTime(4294967295UL);
    PrivilegeUserXml codec;
    codec.setPrivilegeUserList({locked});
    const std::string text = written(codec);
    EXPECT_NE(std::string::npos, text.find("LockTime=\"-1\""));

    PrivilegeUserXml reader;
    ASSERT_TRUE(reads(reader, text));
    EXPECT_EQ(std::numeric_limits<unsigned long>::max(), reader.getPrivilegeUserList().at(0).getLockTime());
}

TEST(PrivilegeUserXml, ReadsAListOfTheDocumentFormInTheNodeForm)
{
    PrivilegeUserXml codec;
    codec.setPrivilegeUserList({sample(), other()});
    std::vector<PrivilegeUser> list;
    ASSERT_TRUE(PrivilegeUserXml().parseXmlString(written(codec), list));
    ASSERT_EQ(2U, list.size());
    expectUser(sample(), list[0]);
    expectUser(other(), list[1]);
}

TEST(PrivilegeUserXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(PrivilegeUserXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "security/PrivilegeUserXml.node.xml"));
}

TEST(PrivilegeUserXml, ReadsNodes)
{
    PrivilegeUser read;
    ASSERT_TRUE(PrivilegeUserXml().parseXmlString(golden("security/PrivilegeUserXml.node.xml"), read));
    expectUser(sample(), read);
}

TEST(PrivilegeUserXml, PrintsALineForEachValueThatANodeLacks)
{
    CapturedOutput output;
    PrivilegeUser read = sample();
    ASSERT_TRUE(PrivilegeUserXml().parseXmlString("<PrivilegeUser />", read));
    expectUser(PrivilegeUser(), read);
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

TEST(PrivilegeUserXml, WritesLists)
{
    std::string text;
    ASSERT_TRUE(PrivilegeUserXml().createXmlString({sample(), other()}, text));
    EXPECT_TRUE(matchesGolden(text, "security/PrivilegeUserXml.list.xml"));
    ASSERT_TRUE(PrivilegeUserXml().createXmlString(std::vector<PrivilegeUser>(), text));
    EXPECT_EQ("<PrivilegeUserList />\n", text);
}

TEST(PrivilegeUserXml, ReadsListsBehindWhatTheyHold)
{
    std::vector<PrivilegeUser> list(1, sample());
    ASSERT_TRUE(PrivilegeUserXml().parseXmlString(golden("security/PrivilegeUserXml.list.xml"), list));
    ASSERT_EQ(3U, list.size());
    expectUser(sample(), list[0]);
    expectUser(sample(), list[1]);
    expectUser(other(), list[2]);
}

TEST(PrivilegeUserXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    PrivilegeUser read = sample();
    std::vector<PrivilegeUser> list(1, sample());
    EXPECT_FALSE(PrivilegeUserXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(PrivilegeUserXml().createDomainXmlNode(list, empty));
    EXPECT_FALSE(PrivilegeUserXml().parseDomainXmlNode(empty, read));
    EXPECT_FALSE(PrivilegeUserXml().parseDomainXmlNode(empty, list));
    expectUser(sample(), read);
    EXPECT_EQ(1U, list.size());
}

TEST(PrivilegeUserXml, RefusesTheRootOfTheOtherKind)
{
    PrivilegeUser read;
    std::vector<PrivilegeUser> list;
    EXPECT_FALSE(PrivilegeUserXml().parseXmlString(golden("security/PrivilegeUserXml.list.xml"), read));
    EXPECT_FALSE(PrivilegeUserXml().parseXmlString(golden("security/PrivilegeUserXml.node.xml"), list));
    EXPECT_TRUE(list.empty());
}

TEST(PrivilegeUserXml, PassesOverItemsOfOtherNamesInANode)
{
    CapturedOutput output;
    std::vector<PrivilegeUser> list;
    ASSERT_TRUE(PrivilegeUserXml().parseXmlString("<PrivilegeUserList><Other /></PrivilegeUserList>", list));
    EXPECT_TRUE(list.empty());
    EXPECT_EQ("", output.text());
}

TEST(PrivilegeUserXml, CarriesTheHighestLockTimeWholeInANode)
{
    PrivilegeUser locked;
    locked.setLockTime(4294967295UL);
    std::string text;
    ASSERT_TRUE(PrivilegeUserXml().createXmlString(locked, text));
    EXPECT_NE(std::string::npos, text.find("LockTime=\"4294967295\""));
    PrivilegeUser read;
    ASSERT_TRUE(PrivilegeUserXml().parseXmlString(text, read));
    EXPECT_EQ(4294967295UL, read.getLockTime());
}

TEST(PrivilegeUserXml, PrintsTheLineOfTheGroupForItsWholeName)
{
    CapturedOutput output;
    PrivilegeUser read = sample();
    ASSERT_TRUE(PrivilegeUserXml().parseXmlString("<PrivilegeUser UserId='1' UserName='' Password='' GroupId='5' "
                                                  "LockFlag='1' LockTime='1' MultiLoginFlag='1' Desc='' />",
                                                  read));
    EXPECT_EQ(0, read.getGroupId());
    EXPECT_EQ("PrivilegeUserXml::parseDomainXmlNode get GroupId failed \n", output.text());
}

TEST(PrivilegeUserXml, TakesANullTextForAnEmptyOne)
{
    PrivilegeUser user = sample();
    user.setUserName(nullptr);
    user.setPassword(nullptr);
    user.setDesc(nullptr);
    EXPECT_EQ("", user.getUserName());
    EXPECT_TRUE(user.getPassword().empty());
    EXPECT_EQ("", user.getDesc());
}
