#pragma once

#include "core/IDomainXml.h"
#include "domain/InetAddr.h"

#include <string>
#include <tinyxml.h>

/// The server that a device reports its alarms to: the "RegisterAlarmServerParam" document.
///
/// A missing "ServerIP" leaves the address, a missing "ServerPort" gives 0, and a missing "IPProtoVer" 1.
class RegisterAlarmServerParamXml : public IDomainXml
{
public:
    RegisterAlarmServerParamXml();
    ~RegisterAlarmServerParamXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setAddr(const InetAddr& addr) { addr_ = addr; }
    const InetAddr& getAddr() const { return addr_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const InetAddr& addr);
    static bool readElement(const TiXmlElement& element, InetAddr& addr);
    /// @}

private:
    InetAddr addr_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
