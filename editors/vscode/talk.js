// node talk.js PANELKIT FILE: the client package's protocol talks with the server about a file without findings.
const { spawn } = require("child_process");
const { readFileSync } = require("fs");
const { pathToFileURL } = require("url");
const protocol = require("vscode-languageserver-protocol/node");

async function main(program, file) {
  const server = spawn(program, ["lsp"], { stdio: ["pipe", "pipe", "inherit"] });
  const connection = protocol.createProtocolConnection(server.stdout, server.stdin);
  const findings = new Promise((resolve) =>
    connection.onNotification(protocol.PublishDiagnosticsNotification.type, resolve)
  );
  connection.listen();
  const { capabilities } = await connection.sendRequest(protocol.InitializeRequest.type, {
    processId: process.pid,
    rootUri: null,
    capabilities: {},
  });
  await connection.sendNotification(protocol.InitializedNotification.type, {});
  const text = new TextDecoder("gbk").decode(readFileSync(file));
  const uri = pathToFileURL(file).href;
  await connection.sendNotification(protocol.DidOpenTextDocumentNotification.type, {
    textDocument: { uri, languageId: "panelkit", version: 1, text },
  });
  const { diagnostics } = await findings;
  const symbols = await connection.sendRequest(protocol.DocumentSymbolRequest.type, { textDocument: { uri } });
  await connection.sendRequest(protocol.ShutdownRequest.type);
  await connection.sendNotification(protocol.ExitNotification.type);
  const code = await new Promise((resolve) => server.on("exit", resolve));
  if (!capabilities.renameProvider || diagnostics.length > 0 || symbols.length === 0 || code !== 0) {
    throw new Error(`unexpected answers: ${JSON.stringify({ capabilities, diagnostics, symbols, code })}`);
  }
}

main(...process.argv.slice(2)).catch((error) => {
  console.error(error.message);
  process.exit(1);
});
