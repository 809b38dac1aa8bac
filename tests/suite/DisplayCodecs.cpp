#include "tests/suite/Codecs.h"

#include "display/DisplayParamXml.h"
#include "display/LayoutWindowXml.h"
#include "display/LiveVideoChannelXml.h"
#include "display/LiveVideoLayoutListXml.h"
#include "display/LiveVideoLayoutXml.h"
#include "display/MonitorParamXml.h"
#include "display/VideoDisplayConfigureXml.h"
#include "tests/suite/Rewrite.h"

std::vector<CodecCase> displayCodecs()
{
    return {
        // clang-format off
        {"display", "DisplayParamXml", "document", rewriteDocument<DisplayParamXml>},
        {"display", "LayoutWindowXml", "document", rewriteDocument<LayoutWindowXml>},
        {"display", "LiveVideoChannelXml", "document", rewriteDocument<LiveVideoChannelXml>},
        {"display", "LiveVideoLayoutListXml", "document", rewriteDocument<LiveVideoLayoutListXml>},
        {"display", "LiveVideoLayoutXml", "document", rewriteDocument<LiveVideoLayoutXml>},
        {"display", "MonitorParamXml", "node", rewriteText<MonitorParamXml, MonitorParam>},
        {"display", "MonitorParamXml", "list", rewriteText<MonitorParamXml, std::vector<MonitorParam>>},
        {"display", "VideoDisplayConfigureXml", "node", rewriteText<VideoDisplayConfigureXml, VideoDisplayConfigure>},
        // clang-format on
    };
}
