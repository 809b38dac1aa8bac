#include "security/UserXml.h"

#include "tests/support/Documents.h"

namespace
{

User sample()
{
    User user;
    user.setSourceId("S-9");
    user.setIP("192.0.2.9");
    user.setPort(40999);
    user.setUserName("operator");
    user.setPassword("not told");
    return user;
}

void expectUser(const User& expected, const User& user)
{
    EXPECT_EQ(expected.getSourceId(), user.getSourceId());
    EXPECT_EQ(expected.getIP(), user.getIP());
    EXPECT_EQ(expected.getPort(), user.getPort());
    EXPECT_EQ(expected.getUserName(), user.getUserName());
    EXPECT_TRUE(expected.getPassword() == user.getPassword()); // without the texts
}

} // namespace

TEST(UserXml, Writes)
{
    UserXml codec;
    codec.setUser(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "security/UserXml.document.xml"));
}

TEST(UserXml, Reads)
{
    UserXml codec;
    ASSERT_TRUE(reads(codec, golden("security/UserXml.document.xml")));
    expectUser(sample(), codec.getUser());
}

TEST(UserXml, ResetsWhatIsMissing)
{
    UserXml codec;
    codec.setUser(sample());
    ASSERT_TRUE(reads(codec, "<User />"));
    expectUser(User(), codec.getUser());
}

TEST(UserXml, NarrowsAPortThatIsTooHigh)
{
    UserXml codec;
    ASSERT_TRUE(reads(codec, "<User Port='70000' />"));
    EXPECT_EQ(4464, codec.getUser().getPort());
}
