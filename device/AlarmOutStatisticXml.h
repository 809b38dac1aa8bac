#pragma once

#include "core/IDomainXml.h"
#include "domain/DeviceRecords.h"

#include <string>
#include <tinyxml.h>

/// One alarm output of a device: the "AlarmOutStatistic" document.
///
/// A missing attribute resets its field, but a missing "AlarmOutStatus" gives 1.
class AlarmOutStatisticXml : public IDomainXml
{
public:
    AlarmOutStatisticXml();
    ~AlarmOutStatisticXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setAlarmOutStatistic(const AlarmOutStatistic& output) { output_ = output; }
    AlarmOutStatistic& getAlarmOutStatistic() { return output_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const AlarmOutStatistic& output);
    static bool readElement(const TiXmlElement& element, AlarmOutStatistic& output);
    /// @}

private:
    AlarmOutStatistic output_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
