#pragma once

#include "core/IDomainXml.h"
#include "domain/DeviceRecords.h"

#include <string>
#include <tinyxml.h>

/// How busy the processor of a device is: the "CpuStatistic" document.
///
/// A missing attribute resets its field.
class CpuStatisticXml : public IDomainXml
{
public:
    CpuStatisticXml();
    ~CpuStatisticXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setCpuStatistic(const CpuStatistic& cpu) { cpu_ = cpu; }
    CpuStatistic& getCpuStatistic() { return cpu_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const CpuStatistic& cpu);
    static bool readElement(const TiXmlElement& element, CpuStatistic& cpu);
    /// @}

private:
    CpuStatistic cpu_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
