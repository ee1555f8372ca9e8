// Starts `panelkit lsp` for description files; the protocol is its client package's.
const vscode = require("vscode");
const { LanguageClient } = require("vscode-languageclient/node");

let client;

function activate(context) {
  const settings = vscode.workspace.getConfiguration("panelkit");
  const language = settings.get("language");
  const server = { command: settings.get("command"), args: language ? ["lsp", "--lang", language] : ["lsp"] };
  client = new LanguageClient("panelkit", "Panelkit", server, {
    documentSelector: [{ language: "panelkit" }],
    synchronize: { fileEvents: vscode.workspace.createFileSystemWatcher("**/*.bmp") },
  });
  context.subscriptions.push(
    vscode.commands.registerCommand("panelkit.preview", async () => {
      const editor = vscode.window.activeTextEditor;
      if (!editor || editor.document.languageId !== "panelkit") {
        return;
      }
      const { line, character } = editor.selection.active;
      try {
        await client.sendRequest("workspace/executeCommand", {
          command: "panelkit.showInPreview",
          arguments: [client.code2ProtocolConverter.asUri(editor.document.uri), { line, character }],
        });
      } catch (error) {
        vscode.window.showErrorMessage(error.message);
      }
    })
  );
  return client.start();
}

function deactivate() {
  return client ? client.stop() : undefined;
}

module.exports = { activate, deactivate };
