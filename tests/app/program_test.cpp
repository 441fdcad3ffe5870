#include "app/program.h"

#include "engine/compiler.h"
#include "program_fixture.h"

namespace zel::test {
namespace {

class Start : public ProgramTest {};

TEST_F(Start, WithoutAConfigurationIsTheFirstOne) {
  EXPECT_EQ(startProgram(program), StartStep::first_start);
  EXPECT_TRUE(services.boxes.shown.empty());
}

TEST_F(Start, ThatIsTheFirstOneLeavesNothingBeforeItsLanguageIsAccepted) {
  for (int start = 0; start < 3; ++start) {
    EXPECT_EQ(startProgram(program), StartStep::first_start);
    EXPECT_FALSE(std::filesystem::exists("config.ini"));
  }
  Program meanwhile{services.services()};
  EXPECT_EQ(startProgram(meanwhile), StartStep::first_start);
  acceptLanguage(meanwhile);
  EXPECT_EQ(startProgram(program), StartStep::presentation);
}

TEST_F(Start, AfterOneThatWasKilledBesideItsEmptyFileSaysSoOnceAndAsksAgain) {
  putBytes("config.ini", "");
  EXPECT_EQ(startProgram(program), StartStep::ended);
  EXPECT_EQ(services.boxes.shown.size(), 1u);
  EXPECT_EQ(startProgram(program), StartStep::first_start);
}

TEST_F(Start, EndsOnAConfigurationThatIsThereAndCannotBeRead) {
  std::filesystem::create_directory("config.ini");
  EXPECT_EQ(startProgram(program), StartStep::ended);
  EXPECT_EQ(services.boxes.shown,
            std::vector<Box>{attention("Un error en la configuración impidió que el programa se "
                                       "inicie correctamente.")});
  EXPECT_TRUE(std::filesystem::is_directory("config.ini"));
}

TEST_F(Start, KeepsADamagedConfigurationThatHoldsAnything) {
  putBytes("config.ini", "EN");
  EXPECT_EQ(startProgram(program), StartStep::ended);
  EXPECT_EQ(bytesOf("config.ini"), "EN");
}

TEST_F(Start, HasAnEngineThatCallsTheGraphsOfTheProgram) {
  addFunction('f', "x^2");
  double value = 0;
  std::string message;
  EXPECT_TRUE(EvaluateFormula(program.engine, 3, value, "f(x)+1", message));
  EXPECT_EQ(value, 10);
  addFunction('f', "x+5");
  EXPECT_TRUE(EvaluateFormula(program.engine, 3, value, "1+f(x)", message));
  EXPECT_EQ(value, 9);
}

TEST_F(Start, KeepsItsConfigurationInTheFolderOfTheStart) {
  const std::string start = std::filesystem::current_path().string();
  const TemporaryFolder elsewhere;
  {
    const CurrentFolderGuard moved(elsewhere.path());
    EXPECT_EQ(startProgram(program), StartStep::first_start);
    SetCurrentLanguage("EN");
    acceptLanguage(program);
    EXPECT_EQ(bytesOf(start + "/config.ini").substr(0, 4), "EN\r\n");
    SetCurrentLanguage("ES");
    shutDown(program);
  }
  EXPECT_EQ(bytesOf("config.ini").substr(0, 4), "ES\r\n");
  EXPECT_EQ(elsewhere.names(), std::set<std::string>{});
}

TEST_F(Start, WithAConfigurationGoesOnToThePresentation) {
  putBytes("config.ini", "EN\r\nTrue");
  EXPECT_EQ(startProgram(program), StartStep::presentation);
  EXPECT_EQ(CurrentLanguage(), "EN");
  EXPECT_TRUE(program.configuration.confirm_deletion);
  EXPECT_TRUE(services.boxes.shown.empty());
  EXPECT_EQ(program.params.keys(), std::vector<std::string>{"llamador"});
  EXPECT_EQ(callerOf(program.params), nullptr);
}

TEST_F(Start, EndsOnADamagedConfigurationInSpanishInBothLanguages) {
  const std::string text =
      "Un error en la configuración impidió que el programa se inicie correctamente.";
  putBytes("config.ini", "");
  EXPECT_EQ(startProgram(program), StartStep::ended);
  putBytes("config.ini", "EN");
  EXPECT_EQ(startProgram(program), StartStep::ended);
  EXPECT_EQ(services.boxes.shown, (std::vector<Box>{{text, "ZEL - ATENCIÓN", BoxStyle::stop},
                                                    {text, "ZEL - NOTIFY", BoxStyle::stop}}));
}

TEST_F(Start, EndsWithTheReportOfAFailedSelfTest) {
  putBytes("config.ini", "ES\r\nFalso");
  const std::string code = NormaliseFormula("log(x*10-0,2)+sen(90)+sig x!");
  double value = 0;
  std::string message;
  program.engine.Evaluate(1.02, value, code, message);
  program.engine.Evaluate(1e308, value, code, message);  // a fault that spoils the next value
  EXPECT_EQ(startProgram(program), StartStep::ended);
  ASSERT_EQ(services.boxes.shown.size(), 1u);
  EXPECT_EQ(services.boxes.shown[0].text.substr(0, 72),
            "Error: Se ha detectado un problema al probar alguna función en su siste");
}

TEST_F(Start, EndsWithItsMessageWhenAStepFails) {
  EXPECT_TRUE(carryOutStart(program, [] {}));
  EXPECT_TRUE(services.boxes.shown.empty());
  SetCurrentLanguage("EN");
  EXPECT_FALSE(carryOutStart(program, [] { throw std::bad_alloc(); }));
  EXPECT_FALSE(carryOutStart(program, [] { throw 1; }));
  const Box box =
      attention("Un error en la configuración impidió que el programa se inicie correctamente.");
  EXPECT_EQ(services.boxes.shown, (std::vector<Box>{box, box}));
}

TEST_F(Start, IsRecommendedAgainWhereMemoryIsUnstable) {
  tellUnstableMemory(program);
  SetCurrentLanguage("EN");
  tellUnstableMemory(program);
  EXPECT_EQ(services.boxes.shown,
            (std::vector<Box>{
                {"No se pudieron cargar los datos en memoria correctamente.\r\nMemoria inestable.  "
                 "Se recomienda reiniciar.",
                 "ZEL - ATENCIÓN", BoxStyle::stop},
                {"Could not load data into memory. Restart program recommended.", "ZEL - NOTIFY",
                 BoxStyle::stop}}));
}

TEST_F(Start, KeepsTheChosenLanguageAndRegistersDocuments) {
  startProgram(program);
  SetCurrentLanguage("EN");
  program.place = {"/opt/zel", "zel"};
  acceptLanguage(program);
  EXPECT_EQ(bytesOf("config.ini").substr(0, 4), "EN\r\n");
  EXPECT_EQ(services.registry.values.size(), 4u);
  EXPECT_EQ(startProgram(program), StartStep::presentation);
}

TEST_F(Start, ChoosesTheHelpFileByTheLanguage) {
  chooseHelpFile(program);
  EXPECT_EQ(program.help_file, "ayuda_es.hlp");
  SetCurrentLanguage("EN");
  EXPECT_EQ(program.help_file, "ayuda_es.hlp");
  chooseHelpFile(program);
  EXPECT_EQ(program.help_file, "ayuda_en.hlp");
}

TEST_F(Start, ShowsTheHelpFileOfTheApplicationAndNotThatOfTheLanguage) {
  chooseHelpFile(program);
  SetCurrentLanguage("EN");
  showApplicationHelp(program);
  EXPECT_EQ(services.help.shown, (std::vector<std::pair<std::string, int>>{{"ayuda_es.hlp", 15}}));
}

TEST_F(Start, IsUndoneByClosingHelpWritingTheConfigurationAndEnding) {
  std::string at_end;
  program.end_process = [&] { at_end = bytesOf("config.ini"); };
  SetCurrentLanguage("EN");
  shutDown(program);
  EXPECT_EQ(services.help.shown, (std::vector<std::pair<std::string, int>>{{"ayuda_en.hlp", 2}}));
  EXPECT_EQ(at_end.substr(0, 4), "EN\r\n");
}

}  // namespace
}  // namespace zel::test
