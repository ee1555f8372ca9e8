-- What neovim_test.sh has the editor do; any error ends it with exit code 1.
local function check(condition, what)
  if not condition then
    error(what, 0)
  end
  return condition
end

local function session()
  package.path = os.getenv("PANELKIT_SOURCES") .. "/editors/neovim/?.lua;" .. package.path
  require("panelkit").setup { command = os.getenv("PANELKIT") }
  vim.cmd("edit " .. os.getenv("PANELKIT_FILE"))
  local buffer = vim.api.nvim_get_current_buf()
  check(vim.bo.fileencoding == "gbk" or vim.bo.fileencoding == "cp936", "read as " .. vim.bo.fileencoding)
  local function client()
    return vim.lsp.buf_get_clients(buffer)[next(vim.lsp.buf_get_clients(buffer)) or 1]
  end
  check(vim.wait(20000, function() return client() and client().initialized end, 20), "no client")

  local function ask(method, params)
    params.textDocument = vim.lsp.util.make_text_document_params(buffer)
    local answer = check(client().request_sync(method, params, 20000, buffer), method .. " isn't answered")
    check(not answer.err, method .. " fails: " .. vim.inspect(answer.err))
    return answer.result
  end
  local function line(number)
    return vim.api.nvim_buf_get_lines(buffer, number, number + 1, true)[1]
  end

  -- The count of the first section whose records are hinted at.
  local all = { start = { line = 0, character = 0 }, ["end"] = { line = vim.api.nvim_buf_line_count(buffer), character = 0 } }
  local place
  local id
  for _, hint in ipairs(ask("textDocument/inlayHint", { range = all })) do
    if hint.label == "records:" and not place and tonumber(line(hint.position.line)) > 1 then
      place = hint.position
    elseif hint.label == "function_id:" then
      local found = ask("textDocument/references", { position = hint.position, context = { includeDeclaration = true } })
      if #found > 2 and not id then
        id = hint.position
      end
    end
  end
  check(place and id, "no count or no id that entries use")
  local count = line(place.line)
  vim.api.nvim_buf_set_text(buffer, place.line, 0, place.line, #count, { tostring(tonumber(count) + 1) })
  check(vim.wait(20000, function() return #vim.diagnostic.get(buffer) > 0 end, 20), "no finding")
  local finding = vim.diagnostic.get(buffer)[1]
  local range = { start = { line = finding.lnum, character = finding.col }, ["end"] = { line = finding.end_lnum, character = finding.end_col } }
  local fixes = ask("textDocument/codeAction", { range = range, context = { diagnostics = {} } })
  check(#fixes == 1, "fixes: " .. vim.inspect(fixes))
  vim.lsp.util.apply_workspace_edit(fixes[1].edit, client().offset_encoding)
  check(line(place.line) == count, "the fix writes " .. line(place.line))
  check(vim.wait(20000, function() return #vim.diagnostic.get(buffer) == 0 end, 20), "the finding stays")

  local old = line(id.line):match("%d+", id.character + 1)
  vim.lsp.util.apply_workspace_edit(ask("textDocument/rename", { position = id, newName = "29999" }), client().offset_encoding)
  local edits = ask("textDocument/formatting", { options = { tabSize = 4, insertSpaces = true } })
  check(#edits > 0, "nothing to format")
  vim.lsp.util.apply_text_edits(edits, buffer, client().offset_encoding)
  vim.cmd("write")
  local file = io.open(vim.fn.fnamemodify(os.getenv("PANELKIT_FILE"), ":h") .. "/id", "w")
  file:write(old)
  file:close()
  vim.lsp.stop_client(vim.lsp.get_active_clients())
end

local isDone, why = pcall(session)
if not isDone then
  print(why)
  vim.cmd("cquit 1")
end
vim.cmd("qall!")
