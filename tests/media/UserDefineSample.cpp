#include "tests/media/UserDefineSample.h"

#include <gtest/gtest.h>

UserDefineParamItem sampleUserItem(int first)
{
    UserDefineParamItem item;
    item.setParamItemType("type " + std::to_string(first));
    item.setParamItemValue("value " + std::to_string(first + 1));
    return item;
}

UserDefineParam sampleUserParam(int first)
{
    UserDefineParam param;
    param.setParamType("kind " + std::to_string(first));
    param.setParamItemList({sampleUserItem(first + 10), sampleUserItem(first + 30)});
    return param;
}

void expectUserItem(const UserDefineParamItem& expected, const UserDefineParamItem& item)
{
    EXPECT_EQ(expected.getParamItemType(), item.getParamItemType());
    EXPECT_EQ(expected.getParamItemValue(), item.getParamItemValue());
}

void expectUserParam(const UserDefineParam& expected, const UserDefineParam& param)
{
    EXPECT_EQ(expected.getParamType(), param.getParamType());
    ASSERT_EQ(expected.getParamItemList().size(), param.getParamItemList().size());
    for (std::size_t number = 0; number < param.getParamItemList().size(); ++number)
        expectUserItem(expected.getParamItemList()[number], param.getParamItemList()[number]);
}
