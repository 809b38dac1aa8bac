#include "commands/PlayExceptionXML.h"

#include "tests/support/Documents.h"

#include <limits>

namespace
{

PlayException exception(int consumerId, int errorNO)
{
    PlayException exception;
    exception.consumerId = consumerId;
    exception.errorNO = errorNO;
    return exception;
}

void expectExceptions(const std::vector<PlayException>& expected, const std::vector<PlayException>& exceptions)
{
    ASSERT_EQ(expected.size(), exceptions.size());
    for (std::size_t number = 0; number < exceptions.size(); ++number)
    {
        EXPECT_EQ(expected[number].consumerId, exceptions[number].consumerId);
        EXPECT_EQ(expected[number].errorNO, exceptions[number].errorNO);
    }
}

} // namespace

TEST(PlayExceptionXML, Writes)
{
    PlayExceptionXML codec;
    codec.setPlayExceptionList({exception(5, 6), exception(7, -8)});
    EXPECT_TRUE(matchesGolden(written(codec), "commands/PlayExceptionXML.document.xml"));
}

TEST(PlayExceptionXML, WritesAnEmptyList)
{
    PlayExceptionXML codec;
    EXPECT_EQ("<PlayExceptionList />\n", written(codec));
}

TEST(PlayExceptionXML, ReadsBehindWhatTheListHolds)
{
    PlayExceptionXML codec;
    codec.setPlayExceptionList({exception(1, 2)});
    ASSERT_TRUE(reads(codec, golden("commands/PlayExceptionXML.document.xml")));
    expectExceptions({exception(1, 2), exception(5, 6), exception(7, -8)}, codec.getPlayExceptionList());
}

TEST(PlayExceptionXML, GivesZeroForWhatIsMissing)
{
    PlayExceptionXML codec;
    ASSERT_TRUE(reads(codec, "<PlayExceptionList><PlayException /></PlayExceptionList>"));
    expectExceptions({exception(0, 0)}, codec.getPlayExceptionList());
}

TEST(PlayExceptionXML, WalksOnFromTheFirstItemOverElementsOfAnyName)
{
    PlayExceptionXML codec;
    ASSERT_TRUE(reads(codec, "<PlayExceptionList><!--PlayException--><Other ErrorNO='1' /><PlayException ErrorNO='2' />"
                             "<!-- -->text<Other ErrorNO='3' /></PlayExceptionList>"));
    expectExceptions({exception(0, 2), exception(0, 3)}, codec.getPlayExceptionList());
}

TEST(PlayExceptionXML, ReadsARootWithoutItems)
{
    PlayExceptionXML codec;
    ASSERT_TRUE(reads(codec, "<PlayExceptionList>text<Other /></PlayExceptionList>"));
    EXPECT_TRUE(codec.getPlayExceptionList().empty());
}

TEST(PlayExceptionXML, ConvertsNumbers)
{
    std::string text;
    EXPECT_TRUE(PlayExceptionXML().Int642Str(std::numeric_limits<long long>::min(), text));
    EXPECT_EQ("-9223372036854775808", text);
    long long value = 7;
    EXPECT_TRUE(PlayExceptionXML().str2Int64("12.9", value));
    EXPECT_EQ(12, value);
    EXPECT_TRUE(PlayExceptionXML().str2Int64("1e300", value));
    EXPECT_EQ(std::numeric_limits<long long>::max(), value);
}
