// The host's menu: one button a screen. Opening one makes a form of this tab's own.
'use strict';

const Menu = (() => {
  const menu = () => document.getElementById('menu');

  function showError(text) {
    document.getElementById('menu-error').textContent = text || '';
  }

  async function show(onOpened, reason) {
    menu().hidden = false;
    showError(reason);
    const buttons = document.getElementById('menu-buttons');
    buttons.textContent = '';
    let screens;
    try {
      screens = (await Api.json('GET', '/api/menu')).screens || [];
    } catch (e) {
      showError(e.message);
      return;
    }
    for (const screen of screens) {
      const button = document.createElement('button');
      button.type = 'button';
      button.className = 'button menu-button';
      button.dataset.screen = screen.screen;
      if (screen.mode !== undefined) button.dataset.mode = screen.mode;
      // Modes 1 and 6 share their caption: the mode's number tells them apart.
      Controls.caption(button, screen.mode !== undefined ? `${screen.mode}  ${screen.caption}` : screen.caption);
      button.addEventListener('click', () => open(screen, onOpened));
      buttons.append(button);
    }
    if (buttons.firstChild) buttons.firstChild.focus();
  }

  async function open(screen, onOpened) {
    const body = {screen: screen.screen};
    if (screen.mode !== undefined) body.mode = screen.mode;
    try {
      const answer = await Api.json('POST', '/api/forms', body);
      Api.setToken(answer.token);
      menu().hidden = true;
      onOpened(answer.state);
    } catch (e) {
      showError(e.message);
    }
  }

  return {show};
})();
