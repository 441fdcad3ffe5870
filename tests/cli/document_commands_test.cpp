#include "cli_fixture.h"

namespace zel::test {
namespace {

class DocumentCommands : public CliTest {};

TEST_F(DocumentCommands, CheckListsTheGraphsInLetterOrder) {
  const std::string file = writeDocument(
      "d.zel", "",
      block('f', 'F', "x^2") +
          block('b', 'C', "b(0;0;3)",
                "h=0\r\nk=0\r\nr=3\r\ncodigo1=7@(9-x^2)\r\ncodigo2=-7@(9-x^2)\r\n") +
          block('a', 'T', "[X(t)=t;Y(t)=sen(t)]",
                "ecuacion_xt=t\r\necuacion_yt=sen(t)\r\ninicio=0\r\nfin=1\r\nvariacion=1\r\n") +
          block('z', 'Z', "p*x", "parametro=P\r\ninicio=-2\r\nfin=2\r\nvariacion=1\r\n") +
          block('p', 'P', "p(0;0;1)", "h=0\r\n", "x^2/2"));
  const Run result = run({"check", file});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.out,
            "a\tT\t#ff0000\t[X(t)=t;Y(t)=sen(t)]\t\tt\t10@(t)\n"
            "b\tC\t#ff0000\tb(0;0;3)\t7@(9-x^2)\t7@(9-x^2)\t-7@(9-x^2)\n"
            "f\tF\t#ff0000\tf(x)=x^2\tx^2\n"
            "p\tP\t#ff0000\tp(0;0;1)\tx^2/2\n"
            "z\tZ\t#ff0000\tz(x,P)=p*x [-2<=P<=2]\tp*x\n");
}

TEST_F(DocumentCommands, CheckLeavesTheColumnOfAMissingKindEmpty) {
  const std::string file = writeDocument(
      "k.zel", "",
      "[GRAFICO]\r\n[PROPIEDADES]\r\nnombre=a\r\ncolor=255\r\necuacion=x\r\ntipo=\r\ncodigo=x\r\n"
      " \r\n[PARAMETROS]\r\n \r\n \r\n");
  EXPECT_EQ(run({"check", file}).out, "a\t\t#ff0000\t\t\n");
}

TEST_F(DocumentCommands, CheckShowsControlCharactersEscaped) {
  const std::string file =
      writeDocument("c.zel", "", block('a', 'F', "x\\2\t+\n\x1b]0;title\x07\x9d\x80"));
  EXPECT_EQ(run({"check", file}).out,
            "a\tF\t#ff0000\ta(x)=x\\\\2\\t+\\n\\x1b]0;title\\x07\\x9d€\t"
            "x\\\\2\\t+\\n\\x1b]0;title\\x07\\x9d€\n");
}

TEST_F(DocumentCommands, NoCommandCreatesADocumentThatIsMissing) {
  const std::string missing = path("missing.zel");
  for (const std::vector<std::string>& line : std::vector<std::vector<std::string>>{
           {"check", missing},
           {"resave", missing, path("out.zel")},
           {"table", missing, "--graph", "a", "--from", "0", "--to", "1", "--step", "1"},
           {"render", missing, "-o", path("out.svg")},
           {"drive", missing},
           {"evaluate", "x", "1", "--document", missing},
           {"evaluate", "--batch", "--document", missing},
           {"check-formula", "x", "--document", missing}}) {
    const Run result = run(line);
    EXPECT_EQ(result.status, 1) << line[0];
    EXPECT_EQ(result.out, "") << line[0];
    EXPECT_EQ(result.err, "Error: No se pudo abrir el archivo.\n") << line[0];
    for (const char* name : {"missing.zel", "out.zel", "out.svg"})
      EXPECT_FALSE(std::filesystem::exists(path(name))) << line[0] << " " << name;
  }
}

TEST_F(DocumentCommands, ReadStandardInputInThePlaceOfAFile) {
  const CurrentFolderGuard current{std::filesystem::path(path("")).parent_path()};
  const std::string waves = bytesOf(example("waves.zel"));
  const std::string listed = run({"check", example("waves.zel")}).out;
  EXPECT_NE(listed, "");
  EXPECT_EQ(run({"check", "-"}, waves).out, listed);
  EXPECT_EQ(run({"resave", "-", "-"}, waves).out, waves);
  EXPECT_EQ(run({"resave", example("waves.zel"), "-"}).out, waves);
  EXPECT_EQ(
      run({"table", "-", "--graph", "a", "--from", "90", "--to", "90", "--step", "1"}, waves).out,
      "90;1\n");
  EXPECT_EQ(run({"evaluate", "a(x)", "90", "--document", "-"}, waves).out, "ok\t1\n");
  EXPECT_FALSE(std::filesystem::exists("-"));
}

TEST_F(DocumentCommands, RefuseStandardInputAsTheyRefuseAFile) {
  const Run empty = run({"check", "-"}, "");
  EXPECT_EQ(empty.status, 1);
  EXPECT_EQ(empty.err, "El archivo no es compatible con esta versión del programa.\n");
  EXPECT_EQ(run({"evaluate", "--batch", "--document", "-"}).status, 2);
  EXPECT_EQ(run({"drive", "-"}).status, 2);
}

TEST_F(DocumentCommands, CheckRefusesWithTheMessageOfTheDocument) {
  const Run incompatible = run({"check", write("a.zel", "versiones_compatibles=2.1")});
  EXPECT_EQ(incompatible.status, 1);
  EXPECT_EQ(incompatible.out, "");
  EXPECT_EQ(incompatible.err, "El archivo no es compatible con esta versión del programa.\n");
  const Run sections = run({"check", write("b.zel", "versiones_compatibles=2.0"), "--lang", "EN"});
  EXPECT_EQ(sections.status, 1);
  EXPECT_EQ(sections.err, "Cannot load file in memory because file format is incompatible.\n");
  EXPECT_EQ(run({"check", path("missing.zel")}).err, "Error: No se pudo abrir el archivo.\n");
  EXPECT_EQ(run({"check", path("")}).err, "Error: No se pudo abrir el archivo.\n");
}

TEST_F(DocumentCommands, ResaveWritesWhatOpeningAndSavingGives) {
  const std::string file =
      writeDocument("in.zel", "xi=-1,50\r\ndefinicion=700\r\nproporcional=3\r\nescala_x=a=b\r\n",
                    block('a', 'F', "x^2 + 1", "", "stale"));
  const Run result = run({"resave", file, path("out.zel")});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.out + result.err, "");
  const std::string written = bytesOf(path("out.zel"));
  for (const char* line :
       {"\r\nxi=-1,50\r\n", "\r\ndefinicion=100\r\n", "\r\nproporcional=1\r\n",
        "\r\nescala_x=a=b\r\n", "\r\ncodigo=x^2+1\r\n", "\r\necuacion=x^2 + 1\r\n"})
    EXPECT_NE(written.find(line), std::string::npos) << line;
}

TEST_F(DocumentCommands, ResaveOfAnExampleChangesNoByte) {
  for (const char* name : {"all_kinds.zel", "alphabet.zel", "calls.zel", "conics.zel", "curves.zel",
                           "families.zel", "oddities.zel", "waves.zel"}) {
    EXPECT_EQ(run({"resave", example(name), path("out.zel")}).status, 0) << name;
    EXPECT_EQ(bytesOf(path("out.zel")), bytesOf(example(name))) << name;
  }
}

TEST_F(DocumentCommands, ResaveSaysWhenItCannotWrite) {
  const Run result = run({"resave", example("waves.zel"), path("no/such/folder.zel")});
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.err, "No se pudo salvar el archivo.\n");
  EXPECT_EQ(run({"resave", example("waves.zel"), path("")}).status, 1);
}

TEST_F(DocumentCommands, TakeFileNamesOfAnyForm) {
  const CurrentFolderGuard current{std::filesystem::path(path("")).parent_path()};
  putBytes("-w.zel", bytesOf(example("waves.zel")));
  putBytes("[w].zel", bytesOf(example("waves.zel")));
  EXPECT_EQ(run({"check", "--", "-w.zel"}).status, 0);
  EXPECT_EQ(run({"check", "[w].zel"}).status, 0);
  EXPECT_EQ(run({"evaluate", "a(x)", "90", "--document", "[w].zel"}).out, "ok\t1\n");
  EXPECT_EQ(run({"resave", "--", "-w.zel", "-v.zel"}).status, 0);
  EXPECT_EQ(bytesOf("-v.zel"), bytesOf(example("waves.zel")));
  EXPECT_EQ(run({"render", "[w].zel", "-o", "[w].svg"}).status, 0);
  EXPECT_NE(bytesOf("[w].svg"), "");
}

TEST_F(DocumentCommands, NeedTheirFiles) {
  EXPECT_EQ(run({"check"}).status, 2);
  EXPECT_EQ(run({"resave", "a"}).status, 2);
}

}  // namespace
}  // namespace zel::test
