#include "commands/RecordStreamCtrlXml.h"

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

/// What a new codec makes of this text of the first parameter.
long long parameterOf(const std::string& text)
{
    RecordStreamCtrlXml codec;
    codec.setParamer1(7);
    EXPECT_TRUE(reads(codec, "<RecordStreamCtrlCommand Paramer1='" + text + "' />"));
    return codec.getParamer1();
}

} // namespace

TEST(RecordStreamCtrlXml, Writes)
{
    RecordStreamCtrlXml codec;
    codec.setCtrlType(1);
    codec.setManagerId(2);
    codec.setParamer1(1500);
    codec.setParamer2(-4);
    codec.setPlayExceptionList({exception(5, 6), exception(7, -8)});
    EXPECT_TRUE(matchesGolden(written(codec), "commands/RecordStreamCtrlXml.document.xml"));
}

TEST(RecordStreamCtrlXml, WritesAnEmptyList)
{
    RecordStreamCtrlXml codec;
    EXPECT_EQ("<RecordStreamCtrlCommand CtrlType=\"0\" ManagerId=\"0\" Paramer1=\"0\" Paramer2=\"0\">\n"
              "\t<PlayExceptionList />\n"
              "</RecordStreamCtrlCommand>\n",
              written(codec));
}

TEST(RecordStreamCtrlXml, Reads)
{
    RecordStreamCtrlXml codec;
    ASSERT_TRUE(reads(codec, golden("commands/RecordStreamCtrlXml.document.xml")));
    EXPECT_EQ(1, codec.getCtrlType());
    EXPECT_EQ(2, codec.getManagerId());
    EXPECT_EQ(1500, codec.getParamer1());
    EXPECT_EQ(-4, codec.getParamer2());
    ASSERT_EQ(2U, codec.getPlayExceptionList().size());
    EXPECT_EQ(5, codec.getPlayExceptionList()[0].consumerId);
    EXPECT_EQ(6, codec.getPlayExceptionList()[0].errorNO);
    EXPECT_EQ(7, codec.getPlayExceptionList()[1].consumerId);
    EXPECT_EQ(-8, codec.getPlayExceptionList()[1].errorNO);
}

TEST(RecordStreamCtrlXml, IsZeroWhenNewAndLeavesWhatIsMissing)
{
    RecordStreamCtrlXml codec;
    ASSERT_TRUE(reads(codec, "<RecordStreamCtrlCommand />"));
    EXPECT_EQ(0, codec.getCtrlType());
    EXPECT_EQ(0, codec.getManagerId());
    EXPECT_EQ(0, codec.getParamer1());
    EXPECT_EQ(0, codec.getParamer2());
    EXPECT_TRUE(codec.getPlayExceptionList().empty());

    RecordStreamCtrlXml used;
    used.setCtrlType(11);
    used.setManagerId(12);
    used.setParamer1(13);
    used.setParamer2(14);
    used.setPlayExceptionList({exception(15, 16)});
    ASSERT_TRUE(reads(used, "<RecordStreamCtrlCommand />"));
    EXPECT_EQ(11, used.getCtrlType());
    EXPECT_EQ(12, used.getManagerId());
    EXPECT_EQ(13, used.getParamer1());
    EXPECT_EQ(14, used.getParamer2());
    ASSERT_EQ(1U, used.getPlayExceptionList().size());
    EXPECT_EQ(15, used.getPlayExceptionList()[0].consumerId);
}

TEST(RecordStreamCtrlXml, WritesTheLow32BitsOfTheParameters)
{
    RecordStreamCtrlXml codec;
    codec.setParamer1(4294967297);
    codec.setParamer2(2147483648);
    const std::string text = written(codec);
    EXPECT_NE(std::string::npos, text.find(" Paramer1=\"1\" Paramer2=\"-2147483648\"")) << text;
}

TEST(RecordStreamCtrlXml, ReadsTheParametersThroughADouble)
{
    EXPECT_EQ(4294967297, parameterOf("4294967297"));
    EXPECT_EQ(9007199254740992, parameterOf("9007199254740993"));
    EXPECT_EQ(1500, parameterOf("1.5e3"));
    EXPECT_EQ(12, parameterOf("12.9"));
    EXPECT_EQ(0, parameterOf("abc"));
    EXPECT_EQ(0, parameterOf(""));
    EXPECT_EQ(0, parameterOf("nan"));
    EXPECT_EQ(std::numeric_limits<long long>::max(), parameterOf("1e300"));
    EXPECT_EQ(std::numeric_limits<long long>::min(), parameterOf("-inf"));

    RecordStreamCtrlXml codec;
    ASSERT_TRUE(reads(codec, "<RecordStreamCtrlCommand Paramer1='4294967297' Paramer2='1.5e3' />"));
    EXPECT_EQ(4294967297, codec.getParamer1());
    EXPECT_EQ(1500, codec.getParamer2());
}

TEST(RecordStreamCtrlXml, ReplacesTheFailedReceiversByAListThatIsThere)
{
    RecordStreamCtrlXml codec;
    codec.setPlayExceptionList({exception(1, 2)});
    ASSERT_TRUE(reads(codec, "<RecordStreamCtrlCommand><PlayExceptionList><PlayException ConsumerId='3' />"
                             "</PlayExceptionList></RecordStreamCtrlCommand>"));
    ASSERT_EQ(1U, codec.getPlayExceptionList().size());
    EXPECT_EQ(3, codec.getPlayExceptionList()[0].consumerId);
    EXPECT_EQ(0, codec.getPlayExceptionList()[0].errorNO);

    RecordStreamCtrlXml other;
    other.setPlayExceptionList({exception(1, 2)});
    ASSERT_TRUE(reads(other, "<RecordStreamCtrlCommand><PlayExceptionList /></RecordStreamCtrlCommand>"));
    EXPECT_TRUE(other.getPlayExceptionList().empty());
}

TEST(RecordStreamCtrlXml, ConvertsNumbers)
{
    std::string text;
    EXPECT_TRUE(RecordStreamCtrlXml().Int642Str(-1, text));
    EXPECT_EQ("-1", text);
    long long value = 7;
    EXPECT_TRUE(RecordStreamCtrlXml().str2Int64("9007199254740993", value));
    EXPECT_EQ(9007199254740992, value);
    EXPECT_TRUE(RecordStreamCtrlXml().str2Int64("none", value));
    EXPECT_EQ(0, value);
}
