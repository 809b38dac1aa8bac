#include "tests/support/Documents.h"

TEST(Documents, ShowNoPassword)
{
    EXPECT_EQ("<A UserName=\"u\" Password=... Port=\"1\" />",
              printable("<A UserName=\"u\" Password=\"p q\" Port=\"1\" />"));
    EXPECT_EQ("<A NewPassWord=... B='2' />", printable("<A NewPassWord='p\"q' B='2' />"));
    EXPECT_EQ("<A FTPPassword=...", printable("<A FTPPassword=\"p"));

    const std::string message = matchesGolden("<A Password=\"p\" />", "network/NTPParamXml.node.xml").message();
    EXPECT_EQ(std::string::npos, message.find("\"p\""));
    EXPECT_NE(std::string::npos, message.find("<A Password=... />"));
}
