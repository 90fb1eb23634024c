#include "SmallDataFolder.h"

namespace lw::fuzz {

namespace {

const char* const kIni = "# folders and catalogues of the fuzzing theatre\r\n"
                         "tvd scg\\0\\\r\n"
                         "models models.cfg\r\n"
                         "actions actions.cfg\r\n"
                         "blocks blocks\\air\r\n"
                         "blocks blocks\\ground\r\n";

const char* const kPatrol = "Group\n{\n  Name = \"patrol\";\n"
                            "  MCU_H_Input\n  {\n    Index = 1;\n    Name = \"start\";\n  }\n"
                            "  MCU_H_Input\n  {\n    Name = \"abort\";\n  }\n"
                            "  MCU_H_Input\n  {\n    Name = \"OBJECT_target\";\n  }\n"
                            "  MCU_H_Output\n  {\n    Name = \"done\";\n  }\n"
                            "  MCU_H_Output\n  {\n    Name = \"failed\";\n  }\n"
                            "  MCU_H_Output\n  {\n    Name = \"spotted\";\n  }\n"
                            "  MCU_H_Output\n  {\n    Name = \"OBJECT_plane\";\n  }\n"
                            "  MCU_H_Dynamic\n  {\n    Name = \"PatrolLead\";\n"
                            "    Holds = [8];\n    Property = \"Model\";\n"
                            "    Property = \"Skin\";\n    Property = \"Country\";\n"
                            "    Property = \"Altitude\";\n  }\n}\n";

const char* const kIntercept = "Group\r\n{\r\n"
                               "  MCU_H_Input\r\n  {\r\n    Name = \"start\";\r\n  }\r\n"
                               "  MCU_H_Input\r\n  {\r\n    Name = \"spotted\";\r\n  }\r\n"
                               "  MCU_H_Output\r\n  {\r\n    Name = \"done\";\r\n  }\r\n"
                               "  MCU_H_Output\r\n  {\r\n    Name = \"failed\";\r\n  }\r\n"
                               "  MCU_H_Output\r\n  {\r\n    Name = \"OBJECT_plane\";\r\n  }\r\n"
                               "  MCU_H_Dynamic\r\n  {\r\n    Name = \"Interceptor\";\r\n"
                               "    Property = \"Model\";\r\n    Property = \"Skin\";\r\n"
                               "    Property = \"Country\";\r\n    Property = \"Speed\";\r\n"
                               "  }\r\n}\r\n";

const char* const kReconFlight = "Group\n{\n"
                                 "  MCU_H_Input\n  {\n    Name = \"start\";\n  }\n"
                                 "  MCU_H_Input\n  {\n    Name = \"OBJECT_target\";\n  }\n"
                                 "  MCU_H_Output\n  {\n    Name = \"done\";\n  }\n"
                                 "  MCU_H_Output\n  {\n    Name = \"failed\";\n  }\n"
                                 "  MCU_H_Output\n  {\n    Name = \"spotted\";\n  }\n"
                                 "  MCU_H_Dynamic\n  {\n    Name = \"ReconPlane\";\n"
                                 "    Property = \"Model\";\n    Property = \"Altitude\";\n"
                                 "  }\n}\n";

const char* const kLanding = "Group\n{\n"
                             "  MCU_H_Input\n  {\n    Name = \"start\";\n  }\n"
                             "  MCU_H_Input\n  {\n    Name = \"done\";\n  }\n"
                             "  MCU_H_Input\n  {\n    Name = \"failed\";\n  }\n"
                             "  MCU_H_Input\n  {\n    Name = \"OBJECT_plane\";\n  }\n}\n";

const char* const kConvoyRoute = "Group\n{\n"
                                 "  MCU_H_Input\n  {\n    Name = \"start\";\n  }\n"
                                 "  MCU_H_Output\n  {\n    Name = \"arrived\";\n  }\n"
                                 "  MCU_H_Output\n  {\n    Name = \"OBJECT_convoy\";\n  }\n"
                                 "  MCU_H_Dynamic\n  {\n    Name = \"ConvoyLead\";\n"
                                 "    Property = \"Model\";\n    Property = \"Speed\";\n  }\n"
                                 "  MCU_H_Dynamic\n  {\n    Name = \"ConvoyTail\";\n"
                                 "    Property = \"Country\";\n  }\n}\n";

const char* const kFuelDepot = "Group\n{\n"
                               "  MCU_H_Input\n  {\n    Name = \"OBJECT_convoy\";\n  }\n"
                               "  MCU_H_Output\n  {\n    Name = \"done\";\n  }\n"
                               "  MCU_H_Dynamic\n  {\n    Name = \"DepotGuard\";\n"
                               "    Property = \"Model\";\n  }\n}\n";

const char* const kModels = "# models of the fuzzing theatre\n"
                            "Type\n{\n\tName \"fighter\"\n"
                            "\tModel\n\t{\n\t\tCoalition ally\n\t\tName kestrel_mk3\n\t}\n"
                            "\tModel\n\t{\n\t\tCoalition foe\n\t\tName vantry_d2\n\t}\n}\n"
                            "Type\n{\n\tName recon\n"
                            "\tModel\n\t{\n\t\tCoalition ally\n\t\tName harrow_b\n\t}\n}\n";

const char* const kActions = "# rules of the fuzzing theatre\n"
                             "Action\n{\n\tName set_speed\n\tComment \"Cruise speed\"\n"
                             "\tNoHelper 0\n\tFormat \"set_speed($property, $value)\"\n}\n"
                             "Action\n{\n\tName formation_pack\n\tComplex 1\n"
                             "\tFormat \"set_formation($property, wedge)\"\n"
                             "\tAdd\n\t{\n\t\tAction \"set_formation(Formation,wedge)\"\n"
                             "\t\tCondition \"if(count>2); \"\n\t}\n}\n";

} // namespace

void AddSmallDataFolder(MemoryFileSystem& disk) {
    const std::string scg = std::string(kDataFolder) + "/scg/";
    disk.AddFile(kIniPath, kIni);
    disk.AddFile(scg + "0/blocks/air/patrol.group", kPatrol);
    disk.AddFile(scg + "0/blocks/air/intercept.group", kIntercept);
    disk.AddFile(scg + "0/blocks/air/ReconFlight.Group", kReconFlight);
    disk.AddFile(scg + "0/blocks/air/landing.group", kLanding);
    disk.AddFile(scg + "0/blocks/ground/ConvoyRoute.GROUP", kConvoyRoute);
    disk.AddFile(scg + "0/blocks/ground/depots/fuel_depot.group", kFuelDepot);
    disk.AddFile(scg + "0/models.cfg", kModels);
    disk.AddFile(scg + "0/actions.cfg", kActions);
}

} // namespace lw::fuzz
