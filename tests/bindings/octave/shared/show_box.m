## What a text box makes of a value: a row for each paragraph, its level and its text.
function rows = show_box (value)
  box = vellox.ppt.TextBox ();
  box.replace (value);
  paragraphs = box.Children;
  rows = cell (numel (paragraphs), 2);
  for i = 1:numel (paragraphs)
    level = paragraphs(i).Level;
    if (isempty (level))
      level = 1;
    endif
    rows(i,:) = {double(level), show_text(paragraphs(i))};
  endfor
endfunction
