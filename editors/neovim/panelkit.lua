-- Neovim (0.7 and later) for the description files of Panelkit: require("panelkit").setup { command = "panelkit" }
local M = {}

local space = vim.api.nvim_create_namespace("panelkit_hints")
local options = { command = "panelkit" }

-- Words in lines of a width.
local function wrapped(words, width)
  local lines = {}
  local line = ""
  for _, word in ipairs(words) do
    if #line > 0 and #line + #word + 2 > width then
      table.insert(lines, { { line, "Comment" } })
      line = ""
    end
    line = line .. "  " .. word
  end
  table.insert(lines, { { line, "Comment" } })
  return lines
end

-- What the values of the cursor's line are called, below it: for a Neovim that can't show hints between the values.
local function show_hints(buffer, client_id)
  local client = vim.lsp.get_client_by_id(client_id)
  if not client or vim.api.nvim_get_current_buf() ~= buffer then
    return
  end
  local number = vim.api.nvim_win_get_cursor(0)[1] - 1
  local line = vim.api.nvim_get_current_line()
  local _, last = vim.str_utfindex(line)
  client.request("textDocument/inlayHint", {
    textDocument = vim.lsp.util.make_text_document_params(buffer),
    range = { start = { line = number, character = 0 }, ["end"] = { line = number, character = last } },
  }, function(error, hints)
    if error or not hints or not vim.api.nvim_buf_is_valid(buffer) then
      return
    end
    local words = {}
    for _, hint in ipairs(hints) do
      local at = vim.str_byteindex(line, hint.position.character, true)
      table.insert(words, hint.label .. " " .. (line:match("%S+", at + 1) or ""))
    end
    vim.api.nvim_buf_clear_namespace(buffer, space, 0, -1)
    if #words > 0 and number < vim.api.nvim_buf_line_count(buffer) then
      vim.api.nvim_buf_set_extmark(buffer, space, number, 0, {
        virt_lines = wrapped(words, vim.api.nvim_win_get_width(0) - 10),
      })
    end
  end, buffer)
end

local function on_attach(client, buffer)
  local function map(keys, what)
    vim.keymap.set("n", keys, what, { buffer = buffer })
  end
  map("K", vim.lsp.buf.hover)
  map("gd", vim.lsp.buf.definition)
  map("gr", vim.lsp.buf.references)
  map("<leader>r", vim.lsp.buf.rename)
  map("<leader>a", vim.lsp.buf.code_action)
  map("<leader>p", function()
    M.preview(buffer)
  end)
  if vim.lsp.inlay_hint then
    vim.lsp.inlay_hint.enable(true, { bufnr = buffer })
    return
  end
  vim.api.nvim_create_autocmd({ "CursorMoved", "InsertLeave", "TextChanged" }, {
    buffer = buffer,
    callback = function()
      show_hints(buffer, client.id)
    end,
  })
  show_hints(buffer, client.id)
end

-- Shows the dialog of a buffer's file, with a mark on the control under the cursor.
function M.preview(buffer)
  vim.lsp.buf_request(buffer, "workspace/executeCommand", {
    command = "panelkit.showInPreview",
    arguments = { vim.uri_from_bufnr(buffer), vim.lsp.util.make_position_params().position },
  })
end

local client_id

function M.attach(buffer)
  local config = { name = "panelkit", cmd = { options.command, "lsp" }, root_dir = vim.fn.getcwd(), on_attach = on_attach }
  if vim.lsp.start then
    vim.lsp.start(config, { bufnr = buffer })
    return
  end
  if not client_id or not vim.lsp.get_client_by_id(client_id) then
    client_id = vim.lsp.start_client(config)
  end
  if client_id then
    vim.lsp.buf_attach_client(buffer, client_id)
  end
end

function M.setup(given)
  options = vim.tbl_extend("force", options, given or {})
  -- What is no UTF-8 is GBK.
  vim.opt.fileencodings = { "ucs-bom", "utf-8", "gbk", "latin1" }
  local group = vim.api.nvim_create_augroup("panelkit", {})
  vim.api.nvim_create_autocmd({ "BufRead", "BufNewFile" }, {
    group = group,
    pattern = "*.dlg",
    callback = function(event)
      vim.bo[event.buf].filetype = "panelkit"
      if event.event == "BufNewFile" then
        vim.bo[event.buf].fileencoding = "gbk"
      end
      M.attach(event.buf)
    end,
  })
end

return M
