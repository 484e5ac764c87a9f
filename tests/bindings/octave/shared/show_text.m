## The text of a paragraph.
function text = show_text (paragraph)
  text = "";
  for i = 1:numel (paragraph.Children)
    content = paragraph.Children(i).Content;
    if (isnumeric (content))
      content = sprintf ("%.15g", content);
    endif
    text = [text, content];
  endfor
endfunction
