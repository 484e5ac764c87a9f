## What a table makes of a value: a cell array of texts.
function texts = show_table (value)
  table = vellox.ppt.Table (value);
  texts = cell (numel (table.Children), double (table.NCols));
  for r = 1:rows (texts)
    for c = 1:columns (texts)
      paragraphs = table.entry (r, c).Children;
      texts{r,c} = "";
      for p = 1:numel (paragraphs)
        texts{r,c} = [texts{r,c}, show_text(paragraphs(p))];
      endfor
    endfor
  endfor
endfunction
