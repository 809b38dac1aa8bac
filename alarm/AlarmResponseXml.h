#pragma once

#include "core/IDomainXml.h"

#include <cstdint>
#include <string>
#include <tinyxml.h>

/// Answers a subscription to alarms: the "AlarmResponse" document.
///
/// A missing attribute leaves its field.
class AlarmResponseXml : public IDomainXml
{
public:
    AlarmResponseXml();
    ~AlarmResponseXml() override;

    /// The number of the request that is answered.
    int getSequenceId() const { return sequenceId_; }
    void setSequenceId(int sequenceId) { sequenceId_ = sequenceId; }

    /// The address that answers, as text.
    const std::string& getIP() const { return ip_; }
    void setIP(const std::string& ip) { ip_ = ip; }

    /// The port that answers.
    std::uint16_t getPort() const { return port_; }
    void setPort(std::uint16_t port) { port_ = port; }

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }
    /// @}

private:
    int sequenceId_ = 0;
    std::string ip_;
    std::uint16_t port_ = 0;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
