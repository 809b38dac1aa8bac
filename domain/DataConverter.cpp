#include "domain/DataConverter.h"

#include "core/Conversions.h"

bool DataConverter::convert(const bool& value, std::string& text)
{
    text = frame::flagText(value);
    return true;
}

bool DataConverter::convert(const int& value, std::string& text)
{
    text = frame::integerText(value).characters;
    return true;
}

bool DataConverter::convert(const long& value, std::string& text)
{
    text = frame::integerText(value).characters;
    return true;
}

bool DataConverter::convert(const unsigned long& value, std::string& text)
{
    text = frame::unsignedText(value).characters;
    return true;
}

bool DataConverter::convert(const double& value, std::string& text)
{
    text = frame::doubleText(value).characters;
    return true;
}

bool DataConverter::convert(const std::string& text, bool& value)
{
    return frame::readFlag(text.c_str(), value);
}

bool DataConverter::convert(const std::string& text, int& value)
{
    long long number = 0;
    if (!frame::readInteger(text.c_str(), number)) return false;
    value = static_cast<int>(number);
    return true;
}

bool DataConverter::convert(const std::string& text, unsigned int& value)
{
    long long number = 0;
    if (!frame::readInteger(text.c_str(), number)) return false;
    value = static_cast<unsigned int>(number);
    return true;
}

bool DataConverter::convert(const std::string& text, unsigned long& value)
{
    unsigned long long number = 0;
    if (!frame::readUnsigned(text.c_str(), number)) return false;
    value = static_cast<unsigned long>(number);
    return true;
}

bool DataConverter::convert(const std::string& text, double& value)
{
    return frame::readDouble(text.c_str(), value);
}
