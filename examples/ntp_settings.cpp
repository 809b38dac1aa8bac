// A device reads the time server settings that clients send to it, and answers a query with those that it has then.

#include "network/NTPParamXml.h"

#include <cstdlib>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>

namespace
{

void apply(const NTPParam& settings)
{
    std::cout << std::boolalpha << "    enabled     " << settings.getNTPEnableFlag() << '\n'
              << "    server      " << settings.getNTPIp() << '\n'
              << "    port        " << settings.getNTPPort() << '\n'
              << "    run time    " << settings.getNTPRunTime() << '\n'
              << "    IP version  " << settings.getIPProtoVer() << '\n';
}

} // namespace

int main(int argc, char** argv)
{
    const NTPParamXml codec;

    for (int i = 1; i < argc; ++i)
    {
        std::ifstream file(argv[i]);
        if (!file)
        {
            std::cerr << argv[i] << " cannot be read\n";
            return EXIT_FAILURE;
        }
        const std::string document{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};

        NTPParam settings;
        if (!codec.parseXmlString(document, settings))
        {
            std::cout << argv[i] << " is refused\n";
            continue;
        }
        std::cout << argv[i] << " is applied\n";
        apply(settings);

        std::string answer;
        codec.createXmlString(settings, answer);
        std::cout << "    answer      " << answer;
    }
    return EXIT_SUCCESS;
}
