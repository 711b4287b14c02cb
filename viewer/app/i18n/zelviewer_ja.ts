<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name>zel4</name>
    <message>
        <source>About ZEL viewer</source>
        <translation>ZEL viewer について</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>カメラ</translation>
    </message>
    <message>
        <source>Runs on</source>
        <translation>動作環境</translation>
    </message>
    <message>
        <source>A viewer for high-speed cameras, with simulated ones.</source>
        <translation>ハイスピードカメラのビューア (模擬カメラ付き)</translation>
    </message>
    <message>
        <source>There is no plug-in %1.</source>
        <translation>プラグイン %1 がありません。</translation>
    </message>
    <message>
        <source>The plug-in can't be loaded: %1</source>
        <translation>プラグインを読み込めません: %1</translation>
    </message>
    <message>
        <source>%1 is no plug-in: it exports no makeHTMLPlugin.</source>
        <translation>%1 はプラグインではありません (makeHTMLPlugin がありません)。</translation>
    </message>
    <message>
        <source>The plug-in %1 made no object.</source>
        <translation>プラグイン %1 がオブジェクトを作成しませんでした。</translation>
    </message>
    <message>
        <source>Everything</source>
        <translation>すべて</translation>
    </message>
    <message>
        <source>Operations</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>Warnings and errors</source>
        <translation>警告とエラー</translation>
    </message>
    <message>
        <source>Lines to show</source>
        <translation>表示する行</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>消去</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>ログ</translation>
    </message>
    <message>
        <source>1 camera, %1 selected</source>
        <translation>カメラ 1 台、選択 %1 台</translation>
    </message>
    <message>
        <source>%1 cameras, %2 selected</source>
        <translation>カメラ %1 台、選択 %2 台</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>ツール</translation>
    </message>
    <message>
        <source>Side panel</source>
        <translation>サイドパネル</translation>
    </message>
    <message>
        <source>Simulated cameras</source>
        <translation>模擬カメラ</translation>
    </message>
    <message>
        <source>Binning: %1 by %1</source>
        <translation>ビニング: %1 × %1</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>ライブ</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>メモリ</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Record ready</source>
        <translation>撮影待機</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>撮影</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Keep recording</source>
        <translation>撮影データを保持</translation>
    </message>
    <message>
        <source>Replay</source>
        <translation>再生</translation>
    </message>
    <message>
        <source>Tile windows</source>
        <translation>並べて表示</translation>
    </message>
    <message>
        <source>Single window</source>
        <translation>1 画面表示</translation>
    </message>
    <message>
        <source>Show windows in turn</source>
        <translation>順番に表示</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>全画面表示</translation>
    </message>
    <message>
        <source>Show information</source>
        <translation>情報を表示</translation>
    </message>
    <message>
        <source>Turn left</source>
        <translation>左に回転</translation>
    </message>
    <message>
        <source>Turn right</source>
        <translation>右に回転</translation>
    </message>
    <message>
        <source>Mirror left to right</source>
        <translation>左右反転</translation>
    </message>
    <message>
        <source>Mirror top to bottom</source>
        <translation>上下反転</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>拡大</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>縮小</translation>
    </message>
    <message>
        <source>Fit into the window</source>
        <translation>画面に合わせる</translation>
    </message>
    <message>
        <source>Original size</source>
        <translation>等倍</translation>
    </message>
    <message>
        <source>Binning</source>
        <translation>ビニング</translation>
    </message>
    <message>
        <source>Open recording...</source>
        <translation>撮影データを開く...</translation>
    </message>
    <message>
        <source>Save recording...</source>
        <translation>撮影データを保存...</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>やり直す</translation>
    </message>
    <message>
        <source>Preferences...</source>
        <translation>環境設定...</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Dark or light</source>
        <translation>ダーク / ライト</translation>
    </message>
    <message>
        <source>English or Japanese</source>
        <translation>英語 / 日本語</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>編集(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Recording</source>
        <translation>撮影(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Image</source>
        <translation>画像(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>表示(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>環境設定</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>ページ</translation>
    </message>
    <message>
        <source>Network adapters</source>
        <translation>ネットワークアダプタ</translation>
    </message>
    <message>
        <source>I/O</source>
        <translation>入出力</translation>
    </message>
    <message>
        <source>Accept the external trigger while ready</source>
        <translation>待機中に外部トリガーを受け付ける</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>撮影中</translation>
    </message>
    <message>
        <source>Being read</source>
        <translation>読み出し中</translation>
    </message>
    <message>
        <source>Recording settings</source>
        <translation>撮影設定</translation>
    </message>
    <message>
        <source>Keep each recording when it ends</source>
        <translation>撮影が終わるたびにデータを保持する</translation>
    </message>
    <message>
        <source>Save what was kept, by the settings of saving</source>
        <translation>保持したデータを保存設定に従って保存する</translation>
    </message>
    <message>
        <source>Go back to live after the recording was kept</source>
        <translation>データを保持したらライブに戻る</translation>
    </message>
    <message>
        <source>Offer the trigger test</source>
        <translation>トリガーテストを使う</translation>
    </message>
    <message>
        <source>Frames to keep of a recording</source>
        <translation>保持するフレーム数</translation>
    </message>
    <message>
        <source>Replay speed</source>
        <translation>再生速度</translation>
    </message>
    <message>
        <source>Ethernet</source>
        <translation>イーサネット</translation>
    </message>
    <message>
        <source>Address to search at</source>
        <translation>検索するアドレス</translation>
    </message>
    <message>
        <source>Address offered for a new camera</source>
        <translation>新しいカメラに提示するアドレス</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>検索方法</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>スタイル</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>Shutter speed</source>
        <translation>シャッター速度</translation>
    </message>
    <message>
        <source>Group the digits of frame rates</source>
        <translation>撮影速度を桁区切りで表示</translation>
    </message>
    <message>
        <source>Group the digits of frame numbers</source>
        <translation>フレーム番号を桁区切りで表示</translation>
    </message>
    <message>
        <source>Image values in the camera's own bit depth</source>
        <translation>画素値をカメラのビット深度で表示</translation>
    </message>
    <message>
        <source>Windows in turn: show each for</source>
        <translation>順番に表示する間隔</translation>
    </message>
    <message>
        <source>All cameras of the network</source>
        <translation>ネットワーク上のすべてのカメラ</translation>
    </message>
    <message>
        <source>At one address</source>
        <translation>アドレスを指定</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>ダーク</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>ライト</translation>
    </message>
    <message>
        <source>English</source>
        <translation>英語</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>日本語</translation>
    </message>
    <message>
        <source>As a fraction of a second</source>
        <translation>分数 (秒)</translation>
    </message>
    <message>
        <source>As an exposure time</source>
        <translation>露光時間</translation>
    </message>
    <message>
        <source>fps</source>
        <translation>fps</translation>
    </message>
    <message>
        <source>s</source>
        <translation>秒</translation>
    </message>
    <message>
        <source>ms</source>
        <translation>ミリ秒</translation>
    </message>
    <message>
        <source>frames</source>
        <translation>フレーム</translation>
    </message>
    <message>
        <source>On</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>Dummy</source>
        <translation>ダミー</translation>
    </message>
    <message>
        <source>Unplugged</source>
        <translation>抜けています</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>接続中</translation>
    </message>
    <message>
        <source>Plugged</source>
        <translation>未接続</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>カメラ</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>接続</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Trigger pulse</source>
        <translation>トリガーパルス</translation>
    </message>
    <message>
        <source>A pulse at the trigger socket; the preferences say whether it counts.</source>
        <translation>トリガー端子へのパルス。受け付けるかどうかは環境設定で決めます。</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>温度</translation>
    </message>
    <message>
        <source>Faults</source>
        <translation>障害</translation>
    </message>
    <message>
        <source>How many commands</source>
        <translation>コマンド数</translation>
    </message>
    <message>
        <source>Refuse the next commands</source>
        <translation>次のコマンドを拒否</translation>
    </message>
    <message>
        <source>Unplug during the next command</source>
        <translation>次のコマンド中に抜く</translation>
    </message>
    <message>
        <source>Phase warning</source>
        <translation>位相の警告</translation>
    </message>
    <message>
        <source>Delay of commands</source>
        <translation>コマンドの遅延</translation>
    </message>
    <message>
        <source>The camera is busy.</source>
        <translation>カメラは処理中です。</translation>
    </message>
    <message>
        <source>The next %1 commands will be refused.</source>
        <translation>次の %1 個のコマンドを拒否します。</translation>
    </message>
    <message>
        <source>Buttons on the camera's back</source>
        <translation>カメラ背面のボタン</translation>
    </message>
    <message>
        <source>Press</source>
        <translation>押す</translation>
    </message>
    <message>
        <source>Head</source>
        <translation>ヘッド</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>値</translation>
    </message>
    <message>
        <source>Unplug</source>
        <translation>抜く</translation>
    </message>
    <message>
        <source>Plug in</source>
        <translation>接続する</translation>
    </message>
    <message>
        <source>Switch on</source>
        <translation>電源オン</translation>
    </message>
    <message>
        <source>Switch off</source>
        <translation>電源オフ</translation>
    </message>
    <message>
        <source>The camera took another value.</source>
        <translation>カメラは別の値を採用しました。</translation>
    </message>
    <message>
        <source>Frame rate</source>
        <translation>撮影速度</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>解像度</translation>
    </message>
    <message>
        <source>Locked Shutter Speed</source>
        <translation>シャッター速度を固定</translation>
    </message>
    <message>
        <source>Locked Resolution</source>
        <translation>解像度を固定</translation>
    </message>
    <message>
        <source>Dual Slope Shutter</source>
        <translation>デュアルスロープシャッター</translation>
    </message>
    <message>
        <source>The live panel is closed. Open it with Ctrl+P.</source>
        <translation>ライブパネルは閉じています。Ctrl+P を押すと開きます。</translation>
    </message>
    <message>
        <source>The live panel serves live mode. Go back to live mode with Ctrl+1.</source>
        <translation>ライブパネルはライブモードで使います。Ctrl+1 を押すとライブモードに戻ります。</translation>
    </message>
    <message>
        <source>Live panel</source>
        <translation>ライブパネル</translation>
    </message>
    <message>
        <source>Camera power</source>
        <translation>カメラの電源</translation>
    </message>
    <message>
        <source>Waiting for the cameras to switch...</source>
        <translation>カメラの切り替わりを待っています...</translation>
    </message>
    <message>
        <source>... and %1 more</source>
        <translation>... 他 %1 件</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>情報</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Confirmation</source>
        <translation>確認</translation>
    </message>
    <message>
        <source>The operation failed: %1</source>
        <translation>操作に失敗しました: %1</translation>
    </message>
    <message>
        <source>The settings file %1 can't be read (%2). The program starts with its default settings.</source>
        <translation>設定ファイル %1 を読めません (%2)。初期設定で起動します。</translation>
    </message>
    <message>
        <source>Line %1 of the settings file makes no sense and was left out.</source>
        <translation>設定ファイルの %1 行目を解釈できないため、無視しました。</translation>
    </message>
    <message>
        <source>%1 lines of the settings file, from line %2 on, make no sense and were left out.</source>
        <translation>設定ファイルの %2 行目以降の %1 行を解釈できないため、無視しました。</translation>
    </message>
    <message>
        <source>The file as it was is kept as %1.</source>
        <translation>元のファイルは %1 として残してあります。</translation>
    </message>
    <message>
        <source>The settings can't be stored in %1 (%2). They hold until the program ends.</source>
        <translation>設定を %1 に保存できません (%2)。設定はプログラムの終了まで有効です。</translation>
    </message>
    <message>
        <source>No recording is open. Record in live mode, then keep the recording.</source>
        <translation>開いている撮影データはありません。ライブモードで撮影し、データを保持してください。</translation>
    </message>
    <message>
        <source>No camera is selected. Select one in the list of the live panel.</source>
        <translation>カメラが選択されていません。ライブパネルの一覧で選択してください。</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>未接続</translation>
    </message>
    <message>
        <source>Booting</source>
        <translation>起動中</translation>
    </message>
    <message>
        <source>Getting ready</source>
        <translation>待機準備中</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>待機中</translation>
    </message>
    <message>
        <source>No recording</source>
        <translation>撮影データなし</translation>
    </message>
    <message>
        <source>No picture</source>
        <translation>画像なし</translation>
    </message>
    <message>
        <source>First frame</source>
        <translation>先頭フレーム</translation>
    </message>
    <message>
        <source>One frame back</source>
        <translation>1 フレーム戻る</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>再生 / 一時停止</translation>
    </message>
    <message>
        <source>One frame forward</source>
        <translation>1 フレーム進む</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>フレーム</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>未接続</translation>
    </message>
    <message>
        <source>The camera supports link speed</source>
        <translation>リンク速度に対応しています</translation>
    </message>
    <message>
        <source>Wi-Fi setting</source>
        <translation>Wi-Fi 設定</translation>
    </message>
    <message>
        <source>Turn off</source>
        <translation>電源を切る</translation>
    </message>
    <message>
        <source>Edit device</source>
        <translation>デバイスの編集</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>p_livecontrol</source>
        <translation>ライブコントロール</translation>
    </message>
    <message>
        <source>livecontrol</source>
        <translation>ライブコントロール</translation>
    </message>
    <message>
        <source>Show info</source>
        <translation>情報を表示</translation>
    </message>
    <message>
        <source>Show Only Connected Cameras</source>
        <translation>接続中のカメラのみ表示</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>すべて選択</translation>
    </message>
    <message>
        <source>Device setting...</source>
        <translation>デバイス設定...</translation>
    </message>
    <message>
        <source>0(OFF)</source>
        <translation>0 (オフ)</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>割合</translation>
    </message>
    <message>
        <source>I/O setting...</source>
        <translation>入出力設定...</translation>
    </message>
    <message>
        <source>Record setting...</source>
        <translation>撮影設定...</translation>
    </message>
    <message>
        <source>DEVICE SETTINGS</source>
        <translation>デバイス設定</translation>
    </message>
    <message>
        <source>Camera search</source>
        <translation>カメラ検索</translation>
    </message>
    <message>
        <source>search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Discovery search</source>
        <translation>自動検索</translation>
    </message>
    <message>
        <source>Use IP address as camera name</source>
        <translation>IP アドレスをカメラ名として使う</translation>
    </message>
    <message>
        <source>Add device</source>
        <translation>デバイスの追加</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Delete all</source>
        <translation>すべて削除</translation>
    </message>
    <message>
        <source>Ethernet setting...</source>
        <translation>イーサネット設定...</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>VARIABLE CUSTOMIZE</source>
        <translation>バリアブル設定</translation>
    </message>
    <message>
        <source>AUTO EXPOSURE SETTING</source>
        <translation>自動露出設定</translation>
    </message>
    <message>
        <source>Auto Exposure On</source>
        <translation>自動露出を使う</translation>
    </message>
    <message>
        <source>Select Area</source>
        <translation>選択範囲</translation>
    </message>
    <message>
        <source>Target Value</source>
        <translation>目標値</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>許容範囲</translation>
    </message>
    <message>
        <source>Maximum exposure time</source>
        <translation>最長露光時間</translation>
    </message>
    <message>
        <source>H/W Image Trigger</source>
        <translation>H/W画像トリガー</translation>
    </message>
    <message>
        <source>Trigger Status</source>
        <translation>トリガー状態</translation>
    </message>
    <message>
        <source>Show Histogram</source>
        <translation>ヒストグラムを表示</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>適用</translation>
    </message>
    <message>
        <source>on</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>off</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>The link to %1 broke while its settings were edited. These settings of the camera stayed changed:</source>
        <translation>%1 との接続が設定の編集中に切れました。カメラの次の設定は変更されたままです:</translation>
    </message>
    <message>
        <source>H/W IMAGE TRIGGER SETTING</source>
        <translation>ハードウェア画像トリガー設定</translation>
    </message>
    <message>
        <source>Camera name</source>
        <translation>カメラ名</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>IP アドレス</translation>
    </message>
    <message>
        <source>IP address 1</source>
        <translation>IP アドレス 1</translation>
    </message>
    <message>
        <source>IP address 2</source>
        <translation>IP アドレス 2</translation>
    </message>
    <message>
        <source>IP address 3</source>
        <translation>IP アドレス 3</translation>
    </message>
    <message>
        <source>IP address 4</source>
        <translation>IP アドレス 4</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Interface</source>
        <translation>インターフェース</translation>
    </message>
    <message>
        <source>WiFi</source>
        <translation>Wi-Fi</translation>
    </message>
    <message>
        <source>Subnetmask</source>
        <translation>サブネットマスク</translation>
    </message>
    <message>
        <source>Subnetmask 1</source>
        <translation>サブネットマスク 1</translation>
    </message>
    <message>
        <source>Subnetmask 2</source>
        <translation>サブネットマスク 2</translation>
    </message>
    <message>
        <source>Subnetmask 3</source>
        <translation>サブネットマスク 3</translation>
    </message>
    <message>
        <source>Subnetmask 4</source>
        <translation>サブネットマスク 4</translation>
    </message>
    <message>
        <source>Default gateway</source>
        <translation>デフォルトゲートウェイ</translation>
    </message>
    <message>
        <source>Default gateway 1</source>
        <translation>デフォルトゲートウェイ 1</translation>
    </message>
    <message>
        <source>Default gateway 2</source>
        <translation>デフォルトゲートウェイ 2</translation>
    </message>
    <message>
        <source>Default gateway 3</source>
        <translation>デフォルトゲートウェイ 3</translation>
    </message>
    <message>
        <source>Default gateway 4</source>
        <translation>デフォルトゲートウェイ 4</translation>
    </message>
    <message>
        <source>Model name</source>
        <translation>機種名</translation>
    </message>
    <message>
        <source>Head name</source>
        <translation>ヘッド名</translation>
    </message>
    <message>
        <source>Firmware version</source>
        <translation>ファームウェアバージョン</translation>
    </message>
    <message>
        <source>Device serial number</source>
        <translation>本体シリアル番号</translation>
    </message>
    <message>
        <source>Head serial number</source>
        <translation>ヘッドシリアル番号</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>チャンネル</translation>
    </message>
    <message>
        <source>Input DeviceName</source>
        <translation>デバイス名を入力してください</translation>
    </message>
    <message>
        <source>Input IPAddress</source>
        <translation>IP アドレスを入力してください</translation>
    </message>
    <message>
        <source>(None)</source>
        <translation>(なし)</translation>
    </message>
    <message>
        <source>Auto Exposure</source>
        <translation>自動露出</translation>
    </message>
    <message>
        <source>Auto Exposure...</source>
        <translation>自動露出...</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>コメント</translation>
    </message>
    <message>
        <source>Information items</source>
        <translation>表示情報の項目</translation>
    </message>
    <message>
        <source>Drag the items, or move them with Alt and the arrow keys.</source>
        <translation>項目はドラッグするか、Alt と矢印キーで並べ替えます。</translation>
    </message>
    <message>
        <source>Separators as blank lines</source>
        <translation>区切りを空行で表示</translation>
    </message>
    <message>
        <source>Output language</source>
        <translation>出力言語</translation>
    </message>
    <message>
        <source>Saved view...</source>
        <translation>保存画像の表示...</translation>
    </message>
    <message>
        <source>Upper</source>
        <translation>上</translation>
    </message>
    <message>
        <source>Left upper</source>
        <translation>左上</translation>
    </message>
    <message>
        <source>Left lower</source>
        <translation>左下</translation>
    </message>
    <message>
        <source>Right upper</source>
        <translation>右上</translation>
    </message>
    <message>
        <source>Right lower</source>
        <translation>右下</translation>
    </message>
    <message>
        <source>Lower</source>
        <translation>下</translation>
    </message>
    <message>
        <source>Not shown</source>
        <translation>表示しない項目</translation>
    </message>
    <message>
        <source>Drag the items to their places, or move them with Alt and the arrow keys.</source>
        <translation>項目は表示位置へドラッグするか、Alt と矢印キーで移動します。</translation>
    </message>
    <message>
        <source>Within the image</source>
        <translation>画像内に表示</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>背景</translation>
    </message>
    <message>
        <source>Fill with</source>
        <translation>塗りつぶし</translation>
    </message>
    <message>
        <source>Background color</source>
        <translation>背景色</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>段組み</translation>
    </message>
    <message>
        <source>Several</source>
        <translation>複数段</translation>
    </message>
    <message>
        <source>Number of columns</source>
        <translation>段数</translation>
    </message>
    <message>
        <source>Spacing</source>
        <translation>段の間隔</translation>
    </message>
    <message>
        <source>Font size follows the size of the picture</source>
        <translation>フォントサイズを画像サイズに合わせる</translation>
    </message>
    <message>
        <source>OK sets all places like this one</source>
        <translation>OK ですべての位置に同じ設定を適用</translation>
    </message>
    <message>
        <source>Font...</source>
        <translation>フォント...</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>フォント</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>太字</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>斜体</translation>
    </message>
    <message>
        <source>Alignment</source>
        <translation>配置</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>左</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>中央</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>右</translation>
    </message>
    <message>
        <source>Icon size</source>
        <translation>アイコンの大きさ</translation>
    </message>
    <message>
        <source>Large</source>
        <translation>大</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>中</translation>
    </message>
    <message>
        <source>Small</source>
        <translation>小</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>色</translation>
    </message>
    <message>
        <source>edit...</source>
        <translation>編集...</translation>
    </message>
    <message>
        <source>edit information</source>
        <translation>情報の編集</translation>
    </message>
    <message>
        <source>Edit Portlet visibility</source>
        <translation>表示設定の編集</translation>
    </message>
    <message>
        <source>Do you reset information setting ?</source>
        <translation>情報の設定をリセットしますか？</translation>
    </message>
    <message>
        <source>Logo Setting</source>
        <translation>ロゴの設定</translation>
    </message>
    <message>
        <source>Same as operating language</source>
        <translation>操作言語と同じ</translation>
    </message>
    <message>
        <source>Output Language Setting</source>
        <translation>出力言語の設定</translation>
    </message>
    <message>
        <source>Edit info</source>
        <translation>情報の編集</translation>
    </message>
    <message>
        <source>Custom info</source>
        <translation>カスタム情報</translation>
    </message>
    <message>
        <source>Calibrate</source>
        <translation>補正</translation>
    </message>
    <message>
        <source>Prioritize speed</source>
        <translation>速度を優先</translation>
    </message>
    <message>
        <source>Display with a maximum resolution</source>
        <translation>最大解像度で表示</translation>
    </message>
    <message>
        <source>dark</source>
        <translation>暗</translation>
    </message>
    <message>
        <source>bright</source>
        <translation>明</translation>
    </message>
    <message>
        <source>Stop fan</source>
        <translation>ファンを停止</translation>
    </message>
    <message>
        <source>Forced to spin</source>
        <translation>強制回転中</translation>
    </message>
    <message>
        <source>The fan is forced to spin because inside the camera is hot. Wait for a while.</source>
        <translation>カメラ内部が高温のため、ファンを強制的に回転しています。しばらくお待ちください。</translation>
    </message>
    <message>
        <source>A fan error occurred.</source>
        <translation>ファンのエラーが発生しました。</translation>
    </message>
    <message>
        <source>Laser</source>
        <translation>レーザー</translation>
    </message>
    <message>
        <source>reconfigure</source>
        <translation>再構成</translation>
    </message>
    <message>
        <source>Export support file...</source>
        <translation>サポートファイルの出力...</translation>
    </message>
    <message>
        <source>Export support file</source>
        <translation>サポートファイルの出力</translation>
    </message>
    <message>
        <source>zip (*.zip)</source>
        <translation>ZIP ファイル (*.zip)</translation>
    </message>
    <message>
        <source>The support file can't be written: %1 (%2)</source>
        <translation>サポートファイルを書き込めません: %1 (%2)</translation>
    </message>
    <message>
        <source>A folder has this name.</source>
        <translation>同じ名前のフォルダがあります。</translation>
    </message>
    <message>
        <source>The information below will be output in ZIP file format. Do you want to proceed?</source>
        <translation>以下の情報を ZIP ファイル形式で出力します。続行しますか?</translation>
    </message>
    <message>
        <source>- ZEL setting values</source>
        <translation>- ZEL の設定値</translation>
    </message>
    <message>
        <source>- ZEL operation log</source>
        <translation>- ZEL の操作ログ</translation>
    </message>
    <message>
        <source>- SDK operation log</source>
        <translation>- SDK の操作ログ</translation>
    </message>
    <message>
        <source>- PC environment</source>
        <translation>- PC の環境</translation>
    </message>
    <message>
        <source>- ZEL version</source>
        <translation>- ZEL のバージョン</translation>
    </message>
    <message>
        <source>- ZEL full screen capture</source>
        <translation>- ZEL の全画面キャプチャ</translation>
    </message>
    <message>
        <source>- QMON window screen capture</source>
        <translation>- QMON ウィンドウのキャプチャ</translation>
    </message>
    <message>
        <source>- Currently displayed image data (1 frame)</source>
        <translation>- 現在表示中の画像データ (1 フレーム)</translation>
    </message>
    <message>
        <source>Saving...</source>
        <translation>保存中...</translation>
    </message>
    <message>
        <source>Please attach preserved file to a mail.</source>
        <translation>保存したファイルをメールに添付してください。</translation>
    </message>
    <message>
        <source>Failed to save support file.</source>
        <translation>サポートファイルの保存に失敗しました。</translation>
    </message>
    <message>
        <source>The file is too large.</source>
        <translation>ファイルが大きすぎます。</translation>
    </message>
    <message>
        <source>%1: the file has no settings of this head.</source>
        <translation>%1: ファイルにこのヘッドの設定がありません。</translation>
    </message>
    <message>
        <source>No camera is connected.</source>
        <translation>カメラが接続されていません。</translation>
    </message>
    <message>
        <source>%1: the file has no settings of this camera.</source>
        <translation>%1: ファイルにこのカメラの設定がありません。</translation>
    </message>
    <message>
        <source>%1: this camera is not connected.</source>
        <translation>%1: このカメラは接続されていません。</translation>
    </message>
    <message>
        <source>Something failed and did not say why.</source>
        <translation>理由不明のエラーが発生しました。</translation>
    </message>
    <message>
        <source>Several operations failed:</source>
        <translation>複数の操作に失敗しました:</translation>
    </message>
    <message>
        <source>%1 (%2 times)</source>
        <translation>%1(%2回)</translation>
    </message>
    <message>
        <source>Not all settings could be restored:</source>
        <translation>復元できなかった設定があります:</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Save to a file</source>
        <translation>ファイルに保存</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>フォルダ</translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation>編集...</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>ファイル名</translation>
    </message>
    <message>
        <source>Save to presets of the cameras</source>
        <translation>カメラのプリセットに保存</translation>
    </message>
    <message>
        <source>The same as the camera name</source>
        <translation>カメラ名と同じ</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Add date and time</source>
        <translation>日時を追加</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>プレビュー</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>%1 行目: %2</translation>
    </message>
    <message>
        <source>Drive the lens</source>
        <translation>レンズの駆動</translation>
    </message>
    <message>
        <source>Switch LED or laser</source>
        <translation>LED/レーザーの切り替え</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; can't be taken.</source>
        <translation>%1: "%2" は使えません。</translation>
    </message>
    <message>
        <source>Stop the recording</source>
        <translation>記録の停止</translation>
    </message>
    <message>
        <source>Switch the power</source>
        <translation>電源の切り替え</translation>
    </message>
    <message>
        <source>Set the image trigger</source>
        <translation>画像トリガーの設定</translation>
    </message>
    <message>
        <source>Set the number of random recordings</source>
        <translation>ランダム撮影回数の設定</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>項目</translation>
    </message>
    <message>
        <source>Select a camera.</source>
        <translation>カメラを選択してください。</translation>
    </message>
    <message>
        <source>File read failed.</source>
        <translation>ファイルの読み込みに失敗しました。</translation>
    </message>
    <message>
        <source>File write failed.</source>
        <translation>ファイルの書き込みに失敗しました。</translation>
    </message>
    <message>
        <source>The file is no recording.</source>
        <translation>撮影データのファイルではありません。</translation>
    </message>
    <message>
        <source>The recording was saved by a newer program.</source>
        <translation>新しいバージョンのプログラムで保存された撮影データです。</translation>
    </message>
    <message>
        <source>The recording is damaged, or a part of it is missing.</source>
        <translation>撮影データが壊れているか、一部が欠けています。</translation>
    </message>
    <message>
        <source>The recording holds no frames.</source>
        <translation>撮影データにフレームがありません。</translation>
    </message>
    <message>
        <source>It is a folder.</source>
        <translation>フォルダです。</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>ファイルがありません。</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>フォルダがありません。</translation>
    </message>
    <message>
        <source>There is no permission to read it.</source>
        <translation>読み取りの権限がありません。</translation>
    </message>
    <message>
        <source>There is no permission to write there.</source>
        <translation>書き込みの権限がありません。</translation>
    </message>
    <message>
        <source>The file is no XML file, or it is damaged.</source>
        <translation>XML ファイルではないか、壊れています。</translation>
    </message>
    <message>
        <source>The file holds no items.</source>
        <translation>ファイルに項目がありません。</translation>
    </message>
    <message>
        <source>There are no items.</source>
        <translation>項目はありません。</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>単位</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>追加</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>変更</translation>
    </message>
    <message>
        <source>Load...</source>
        <translation>読み込み...</translation>
    </message>
    <message>
        <source>Save...</source>
        <translation>保存...</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>Use</source>
        <translation>使用</translation>
    </message>
    <message>
        <source>Enter a name.</source>
        <translation>名前を入力してください。</translation>
    </message>
    <message>
        <source>An item has this name.</source>
        <translation>この名前の項目がすでにあります。</translation>
    </message>
    <message>
        <source>The camera settings file can't be read: %1 (%2)</source>
        <translation>カメラ設定ファイルを読み込めません: %1 (%2)</translation>
    </message>
    <message>
        <source>The camera settings file can't be written: %1 (%2)</source>
        <translation>カメラ設定ファイルを書き込めません: %1 (%2)</translation>
    </message>
    <message>
        <source>Load from camera</source>
        <translation>カメラから読み込む</translation>
    </message>
    <message>
        <source>Device Save</source>
        <translation>デバイスの保存</translation>
    </message>
    <message>
        <source>Device Open</source>
        <translation>デバイスを開く</translation>
    </message>
    <message>
        <source>Edit Filename</source>
        <translation>ファイル名の編集</translation>
    </message>
    <message>
        <source>Select folder</source>
        <translation>フォルダの選択</translation>
    </message>
    <message>
        <source>%1 does not exist.</source>
        <translation>%1 は存在しません。</translation>
    </message>
    <message>
        <source>Do you want to overwrite it?</source>
        <translation>上書きしますか?</translation>
    </message>
    <message>
        <source>%1 already exists. Do you want to replace it?</source>
        <translation>%1 は既に存在します。置き換えますか?</translation>
    </message>
    <message>
        <source>The following camera preset is loaded after rebooting. Please restart the camera.</source>
        <translation>次のカメラのプリセットは再起動後に読み込まれます。カメラを再起動してください。</translation>
    </message>
    <message>
        <source>The setting can not be saved because low light ON camera is included.</source>
        <translation>ローライトがオンのカメラが含まれているため、設定を保存できません。</translation>
    </message>
    <message>
        <source>The settings cannot be loaded because a camera with low light ON is included.</source>
        <translation>ローライトがオンのカメラが含まれているため、設定を読み込めません。</translation>
    </message>
    <message>
        <source>The path of the target is too long.</source>
        <translation>保存先のパスが長すぎます。</translation>
    </message>
    <message>
        <source>Invalid filename.</source>
        <translation>ファイル名が正しくありません。</translation>
    </message>
    <message>
        <source>Format of date and time</source>
        <translation>日時の書式</translation>
    </message>
    <message>
        <source>Lens control</source>
        <translation>レンズ制御</translation>
    </message>
    <message>
        <source>Iris</source>
        <translation>絞り</translation>
    </message>
    <message>
        <source>Focus</source>
        <translation>フォーカス</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>ズーム</translation>
    </message>
    <message>
        <source>open</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>close</source>
        <translation>絞る</translation>
    </message>
    <message>
        <source>near</source>
        <translation>近</translation>
    </message>
    <message>
        <source>far</source>
        <translation>遠</translation>
    </message>
    <message>
        <source>wide</source>
        <translation>広角</translation>
    </message>
    <message>
        <source>tele</source>
        <translation>望遠</translation>
    </message>
    <message>
        <source>AF</source>
        <translation>AF</translation>
    </message>
    <message>
        <source>Lens Close</source>
        <translation>レンズを閉じる</translation>
    </message>
    <message>
        <source>Locked by the multi-camera tool</source>
        <translation>複数カメラツールがロック中</translation>
    </message>
    <message>
        <source>Updating</source>
        <translation>更新中</translation>
    </message>
    <message>
        <source>Trigger mode</source>
        <translation>トリガーモード</translation>
    </message>
    <message>
        <source>Trigger Parameter</source>
        <translation>トリガーパラメータ</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>バリアブル</translation>
    </message>
    <message>
        <source>Shading</source>
        <translation>シェーディング</translation>
    </message>
    <message>
        <source>Live speed</source>
        <translation>ライブ速度</translation>
    </message>
    <message>
        <source>Low light</source>
        <translation>ローライト</translation>
    </message>
    <message>
        <source>Fan Control</source>
        <translation>ファン制御</translation>
    </message>
    <message>
        <source>LED/Laser Control</source>
        <translation>LED / レーザー制御</translation>
    </message>
    <message>
        <source>reconfigure camera communication</source>
        <translation>カメラ通信を再構成</translation>
    </message>
    <message>
        <source>Save setting</source>
        <translation>設定を保存</translation>
    </message>
    <message>
        <source>Load setting</source>
        <translation>設定を読み込む</translation>
    </message>
    <message>
        <source>Configure the interface</source>
        <translation>インターフェースの設定</translation>
    </message>
    <message>
        <source>Acquire live image</source>
        <translation>ライブ画像の取得</translation>
    </message>
    <message>
        <source>Setting the resolution</source>
        <translation>解像度の設定</translation>
    </message>
    <message>
        <source>Set the shutter speed</source>
        <translation>シャッター速度の設定</translation>
    </message>
    <message>
        <source>Set to record ready state</source>
        <translation>撮影待機状態への切り替え</translation>
    </message>
    <message>
        <source>Start recording</source>
        <translation>撮影の開始</translation>
    </message>
    <message>
        <source>Switch live mode / memory playback mode</source>
        <translation>ライブモード / メモリ再生モードの切り替え</translation>
    </message>
    <message>
        <source>Set the frame rate</source>
        <translation>撮影速度の設定</translation>
    </message>
    <message>
        <source>Set the shutter speed lock</source>
        <translation>シャッター固定の設定</translation>
    </message>
    <message>
        <source>Set the resolution lock</source>
        <translation>解像度固定の設定</translation>
    </message>
    <message>
        <source>Set the dual slope shutter</source>
        <translation>デュアルスロープシャッターの設定</translation>
    </message>
    <message>
        <source>Connected_wifi</source>
        <translation>接続中</translation>
    </message>
    <message>
        <source>Scanning</source>
        <translation>検索中</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>接続しています</translation>
    </message>
    <message>
        <source>Connection to the access point failed.</source>
        <translation>アクセスポイントに接続できませんでした。</translation>
    </message>
    <message>
        <source>Disconnection to the access point failed.</source>
        <translation>アクセスポイントから切断できませんでした。</translation>
    </message>
    <message>
        <source>Multiple cameras capable of power operation from ZEL are connected. Do you operate all at once?</source>
        <translation>電源操作が可能なカメラが複数接続されています。すべて同時に操作しますか?</translation>
    </message>
    <message>
        <source>Turns off or restarts the camera. Is it OK?</source>
        <translation>カメラの電源を切るか、再起動します。よろしいですか?</translation>
    </message>
    <message>
        <source>Turn off the camera</source>
        <translation>電源を切る</translation>
    </message>
    <message>
        <source>Restart the camera</source>
        <translation>再起動する</translation>
    </message>
    <message>
        <source>Turn off the camera. Are you really sure?</source>
        <translation>カメラの電源を切ります。本当によろしいですか?</translation>
    </message>
    <message>
        <source>Restart the camera. Are you really sure?</source>
        <translation>カメラを再起動します。本当によろしいですか?</translation>
    </message>
    <message>
        <source>Turn off the camera. Is it OK?</source>
        <translation>カメラの電源を切ります。よろしいですか?</translation>
    </message>
    <message>
        <source>Not turn off</source>
        <translation>切らない</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>再起動</translation>
    </message>
    <message>
        <source>Not restart</source>
        <translation>再起動しない</translation>
    </message>
    <message>
        <source>Heads connected to the same device are also removed from the list. Is it OK?</source>
        <translation>同じ装置に接続されたヘッドもリストから削除されます。よろしいですか?</translation>
    </message>
    <message>
        <source>Do you want to delete?</source>
        <translation>削除しますか?</translation>
    </message>
    <message>
        <source>Do you want to delete all?</source>
        <translation>すべて削除しますか?</translation>
    </message>
    <message>
        <source>Please input within %1 bytes.</source>
        <translation>%1バイト以内で入力してください。</translation>
    </message>
    <message>
        <source>Please Old Password input within %1 bytes.</source>
        <translation>古いパスワードは%1バイト以内で入力してください。</translation>
    </message>
    <message>
        <source>Please New Password input within %1 bytes.</source>
        <translation>新しいパスワードは%1バイト以内で入力してください。</translation>
    </message>
    <message>
        <source>New Password is different.</source>
        <translation>新しいパスワードが一致しません。</translation>
    </message>
    <message>
        <source>To connect with WiFi, you need to disconnect the camera and search the camera again. Do you want to disconnect the camera?</source>
        <translation>WiFiで接続するには、カメラを切断して再度検索する必要があります。カメラを切断しますか?</translation>
    </message>
    <message>
        <source>H/W Image Trigger...</source>
        <translation>H/W画像トリガー...</translation>
    </message>
    <message>
        <source>Random frames</source>
        <translation>ランダムフレーム数</translation>
    </message>
    <message>
        <source>Enable times</source>
        <translation>記録回数を指定</translation>
    </message>
    <message>
        <source>Number of recordings</source>
        <translation>記録回数</translation>
    </message>
    <message>
        <source>Total frames</source>
        <translation>総フレーム数</translation>
    </message>
    <message>
        <source>Trigger point</source>
        <translation>トリガー位置</translation>
    </message>
    <message>
        <source>Before trigger</source>
        <translation>トリガー前</translation>
    </message>
    <message>
        <source>After trigger</source>
        <translation>トリガー後</translation>
    </message>
    <message>
        <source>Before trigger (%)</source>
        <translation>トリガー前 (%)</translation>
    </message>
    <message>
        <source>After trigger (%)</source>
        <translation>トリガー後 (%)</translation>
    </message>
    <message>
        <source>frame</source>
        <translation>コマ</translation>
    </message>
    <message>
        <source>Maintain the number of frames before trigger input</source>
        <translation>トリガー入力前のフレーム数を維持します</translation>
    </message>
    <message>
        <source>Maintain the number of frames after trigger input</source>
        <translation>トリガー入力後のフレーム数を維持します</translation>
    </message>
    <message>
        <source>Maintain the ratio before and after the trigger input</source>
        <translation>トリガー入力前後の比率を維持します</translation>
    </message>
    <message>
        <source>Start Trg</source>
        <translation>スタートトリガー</translation>
    </message>
    <message>
        <source>Center Trg</source>
        <translation>センタートリガー</translation>
    </message>
    <message>
        <source>End Trg</source>
        <translation>エンドトリガー</translation>
    </message>
    <message>
        <source>Random Trg</source>
        <translation>ランダムトリガー</translation>
    </message>
    <message>
        <source>Manual Trg</source>
        <translation>マニュアルトリガー</translation>
    </message>
    <message>
        <source>Random Reset Trg</source>
        <translation>ランダムリセットトリガー</translation>
    </message>
    <message>
        <source>Random Center Trg</source>
        <translation>ランダムセンタートリガー</translation>
    </message>
    <message>
        <source>Random Manual Trg</source>
        <translation>ランダムマニュアルトリガー</translation>
    </message>
    <message>
        <source>Twostage Trg</source>
        <translation>2段階トリガー</translation>
    </message>
    <message>
        <source>Twostage Half Trg</source>
        <translation>2段階 1/2 トリガー</translation>
    </message>
    <message>
        <source>Twostage Quarter Trg</source>
        <translation>2段階 1/4 トリガー</translation>
    </message>
    <message>
        <source>Twostage Oneeighth Trg</source>
        <translation>2段階 1/8 トリガー</translation>
    </message>
    <message>
        <source>Reset Trg</source>
        <translation>リセットトリガー</translation>
    </message>
    <message>
        <source>Rec on cmd Trg</source>
        <translation>コマンド記録トリガー</translation>
    </message>
    <message>
        <source>Random Loop Trg</source>
        <translation>ランダムループトリガー</translation>
    </message>
    <message>
        <source>None Error Trg</source>
        <translation>トリガーなし (エラー)</translation>
    </message>
    <message>
        <source>Whole numbers only</source>
        <translation>整数のみ入力できます</translation>
    </message>
    <message>
        <source>Whole numbers from %1 to %2 only</source>
        <translation>%1 ～ %2 の整数のみ入力できます</translation>
    </message>
    <message>
        <source>Numbers only</source>
        <translation>数値のみ入力できます</translation>
    </message>
    <message>
        <source>Numbers from %1 to %2 only</source>
        <translation>%1 ～ %2 の数値のみ入力できます</translation>
    </message>
    <message>
        <source>Access points</source>
        <translation>アクセスポイント</translation>
    </message>
    <message>
        <source>Adapter</source>
        <translation>アダプター</translation>
    </message>
    <message>
        <source>Add Device</source>
        <translation>デバイスの追加</translation>
    </message>
    <message>
        <source>Edit Device</source>
        <translation>デバイスの編集</translation>
    </message>
    <message>
        <source>Address of the chosen camera</source>
        <translation>選択したカメラのアドレス</translation>
    </message>
    <message>
        <source>Camera WiFi Setting</source>
        <translation>カメラのWiFi設定</translation>
    </message>
    <message>
        <source>Camera search settings</source>
        <translation>カメラ検索の設定</translation>
    </message>
    <message>
        <source>Camera search settings...</source>
        <translation>カメラ検索の設定...</translation>
    </message>
    <message>
        <source>Change address</source>
        <translation>アドレスを変更</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>接続</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>切断</translation>
    </message>
    <message>
        <source>In the list</source>
        <translation>一覧にあります</translation>
    </message>
    <message>
        <source>Input password</source>
        <translation>パスワードの入力</translation>
    </message>
    <message>
        <source>MAC address</source>
        <translation>MACアドレス</translation>
    </message>
    <message>
        <source>New password</source>
        <translation>新しいパスワード</translation>
    </message>
    <message>
        <source>New password (again)</source>
        <translation>新しいパスワード (確認)</translation>
    </message>
    <message>
        <source>Old password</source>
        <translation>現在のパスワード</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>パスワード</translation>
    </message>
    <message>
        <source>Password...</source>
        <translation>パスワード...</translation>
    </message>
    <message>
        <source>Change Password</source>
        <translation>パスワードの変更</translation>
    </message>
    <message>
        <source>No access point yet. Press "Scan" to look for some.</source>
        <translation>アクセスポイントはまだありません。「スキャン」を押して探してください。</translation>
    </message>
    <message>
        <source>No camera answers at %1.</source>
        <translation>%1 で応答するカメラがありません。</translation>
    </message>
    <message>
        <source>No camera was found.</source>
        <translation>カメラが見つかりませんでした。</translation>
    </message>
    <message>
        <source>Reachable</source>
        <translation>通信できます</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>スキャン</translation>
    </message>
    <message>
        <source>Search again</source>
        <translation>再検索</translation>
    </message>
    <message>
        <source>Search all networks of this computer</source>
        <translation>このコンピューターの全ネットワークを検索</translation>
    </message>
    <message>
        <source>Search the network of an address</source>
        <translation>指定アドレスのネットワークを検索</translation>
    </message>
    <message>
        <source>Searched at %1 only.</source>
        <translation>%1 だけを検索しました。</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>設定...</translation>
    </message>
    <message>
        <source>Signal strength</source>
        <translation>電波の強さ</translation>
    </message>
    <message>
        <source>The camera has no valid address.</source>
        <translation>カメラのアドレスが正しくありません。</translation>
    </message>
    <message>
        <source>The camera is not in the list.</source>
        <translation>カメラが一覧にありません。</translation>
    </message>
    <message>
        <source>The camera does not answer.</source>
        <translation>カメラが応答しません。</translation>
    </message>
    <message>
        <source>%1 is not in the network of this adapter (%2 / %3).</source>
        <translation>%1 はこのアダプターのネットワーク (%2 / %3) にありません。</translation>
    </message>
    <message>
        <source>This computer has the same address.</source>
        <translation>このコンピューターと同じアドレスです。</translation>
    </message>
    <message>
        <source>The address %1 is already in the list: %2</source>
        <translation>アドレス %1 は既に一覧にあります: %2</translation>
    </message>
    <message>
        <source>The address %1 belongs to another camera: %2</source>
        <translation>アドレス %1 は別のカメラが使っています: %2</translation>
    </message>
    <message>
        <source>%1 is no subnet mask.</source>
        <translation>%1 はサブネットマスクではありません。</translation>
    </message>
    <message>
        <source>%1 is no address for a camera in the network %2.</source>
        <translation>%1 はネットワーク %2 のカメラには使えないアドレスです。</translation>
    </message>
    <message>
        <source>Turn off or restart; the camera leaves the list until it is found again</source>
        <translation>電源を切る・再起動する (カメラは再検索まで一覧から外れます)</translation>
    </message>
    <message>
        <source>Changed to %1: the box takes %2 to %3.</source>
        <translation>%1 に変更しました。入力できるのは %2～%3 です。</translation>
    </message>
    <message>
        <source>The link to these cameras was lost while they were recording. They go on by themselves; connect them again to see their recordings.</source>
        <translation>次のカメラとの接続が撮影中に切れました。カメラは単独で撮影を続けます。撮影結果を見るには再接続してください。</translation>
    </message>
    <message>
        <source>Acquire the configuration of the interface</source>
        <translation>インターフェース設定の取得</translation>
    </message>
    <message>
        <source>Acquire images from the docked store</source>
        <translation>ドックストアからの画像の取得</translation>
    </message>
    <message>
        <source>Acquire IRIG times from the docked store</source>
        <translation>ドックストアからの IRIG 時刻の取得</translation>
    </message>
    <message>
        <source>Acquire the usage of the docked store</source>
        <translation>ドックストアの使用量の取得</translation>
    </message>
    <message>
        <source>Acquire the total amount written to the docked store</source>
        <translation>ドックストアの総書き込み量の取得</translation>
    </message>
    <message>
        <source>Acquire the state of the docked store</source>
        <translation>ドックストアの状態の取得</translation>
    </message>
    <message>
        <source>Acquire the type of the camera</source>
        <translation>カメラの機種の取得</translation>
    </message>
    <message>
        <source>Acquire the recording method</source>
        <translation>記録方式の取得</translation>
    </message>
    <message>
        <source>Acquire recorded images</source>
        <translation>撮影画像の取得</translation>
    </message>
    <message>
        <source>Acquire the resolution</source>
        <translation>解像度の取得</translation>
    </message>
    <message>
        <source>Acquire the maximum resolution</source>
        <translation>最大解像度の取得</translation>
    </message>
    <message>
        <source>Acquire the position of the image on the sensor</source>
        <translation>センサ上の画像位置の取得</translation>
    </message>
    <message>
        <source>Acquire the resolution of the recorded images</source>
        <translation>撮影画像の解像度の取得</translation>
    </message>
    <message>
        <source>Acquire the bit depth</source>
        <translation>ビット深度の取得</translation>
    </message>
    <message>
        <source>Acquire the automatic playback setting</source>
        <translation>自動再生設定の取得</translation>
    </message>
    <message>
        <source>Acquire the clock of the camera</source>
        <translation>カメラの時計の取得</translation>
    </message>
    <message>
        <source>Acquire the number of programmable switches</source>
        <translation>プログラマブルスイッチの数の取得</translation>
    </message>
    <message>
        <source>Acquire the functions of the programmable switches</source>
        <translation>プログラマブルスイッチの機能一覧の取得</translation>
    </message>
    <message>
        <source>Acquire the function of a programmable switch</source>
        <translation>プログラマブルスイッチの機能の取得</translation>
    </message>
    <message>
        <source>Acquire the network settings of the camera</source>
        <translation>カメラのネットワーク設定の取得</translation>
    </message>
    <message>
        <source>Acquire the firmware version</source>
        <translation>ファームウェアのバージョンの取得</translation>
    </message>
    <message>
        <source>Acquire the color type</source>
        <translation>カラー形式の取得</translation>
    </message>
    <message>
        <source>Acquire the automatic advance of partitions</source>
        <translation>パーティション自動切り替えの取得</translation>
    </message>
    <message>
        <source>Acquire the current partition</source>
        <translation>現在のパーティションの取得</translation>
    </message>
    <message>
        <source>Acquire the partition of the memory playback</source>
        <translation>メモリ再生のパーティションの取得</translation>
    </message>
    <message>
        <source>Acquire the list of partitions</source>
        <translation>パーティション一覧の取得</translation>
    </message>
    <message>
        <source>Acquire information on the recorded frames</source>
        <translation>撮影フレーム情報の取得</translation>
    </message>
    <message>
        <source>Acquire the trigger mode of the recording</source>
        <translation>撮影時のトリガーモードの取得</translation>
    </message>
    <message>
        <source>Set the IRIG mode</source>
        <translation>IRIG モードの設定</translation>
    </message>
    <message>
        <source>Set the recording method</source>
        <translation>記録方式の設定</translation>
    </message>
    <message>
        <source>Set the bit depth</source>
        <translation>ビット深度の設定</translation>
    </message>
    <message>
        <source>Set the clock of the camera</source>
        <translation>カメラの時計の設定</translation>
    </message>
    <message>
        <source>Acquire the state of the function assigned to the programmable switch</source>
        <translation>プログラマブルスイッチに割り当てた機能の状態の取得</translation>
    </message>
    <message>
        <source>Set the network settings of the camera</source>
        <translation>カメラのネットワーク設定</translation>
    </message>
    <message>
        <source>Set the color type</source>
        <translation>カラー形式の設定</translation>
    </message>
    <message>
        <source>Set the partition of the memory playback</source>
        <translation>メモリ再生のパーティションの設定</translation>
    </message>
    <message>
        <source>Set the current partition</source>
        <translation>現在のパーティションの設定</translation>
    </message>
    <message>
        <source>Set the automatic advance of partitions</source>
        <translation>パーティション自動切り替えの設定</translation>
    </message>
    <message>
        <source>Set the image transfer option</source>
        <translation>画像転送オプションの設定</translation>
    </message>
    <message>
        <source>Set the IRIG phase lock</source>
        <translation>IRIG 位相ロックの設定</translation>
    </message>
    <message>
        <source>Set the IRIG offset</source>
        <translation>IRIG オフセットの設定</translation>
    </message>
    <message>
        <source>Set the IRIG sampling mode</source>
        <translation>IRIG サンプリングモードの設定</translation>
    </message>
    <message>
        <source>Set the analog input</source>
        <translation>アナログ入力の設定</translation>
    </message>
    <message>
        <source>Set the video output mode</source>
        <translation>映像出力モードの設定</translation>
    </message>
    <message>
        <source>Set the HD-SDI video output</source>
        <translation>HD-SDI 映像出力の設定</translation>
    </message>
    <message>
        <source>Set the video output signal</source>
        <translation>映像出力信号の設定</translation>
    </message>
    <message>
        <source>Set the download mode</source>
        <translation>ダウンロードモードの設定</translation>
    </message>
    <message>
        <source>Set the external output</source>
        <translation>外部出力の設定</translation>
    </message>
    <message>
        <source>Set the external input</source>
        <translation>外部入力の設定</translation>
    </message>
    <message>
        <source>Set the multiplier of the sync output</source>
        <translation>同期出力の逓倍率の設定</translation>
    </message>
    <message>
        <source>Store the settings in a preset</source>
        <translation>プリセットへの設定の保存</translation>
    </message>
    <message>
        <source>Store the settings in the camera</source>
        <translation>カメラへの設定の保存</translation>
    </message>
    <message>
        <source>Set the low light mode</source>
        <translation>ローライトモードの設定</translation>
    </message>
    <message>
        <source>Switch auto exposure</source>
        <translation>自動露出の切り替え</translation>
    </message>
    <message>
        <source>Set the auto exposure parameters</source>
        <translation>自動露出パラメータの設定</translation>
    </message>
    <message>
        <source>Set the trigger mode</source>
        <translation>トリガーモードの設定</translation>
    </message>
    <message>
        <source>Control the fan</source>
        <translation>ファンの制御</translation>
    </message>
    <message>
        <source>Start endless recording</source>
        <translation>エンドレス撮影の開始</translation>
    </message>
    <message>
        <source>Switch the variable channel</source>
        <translation>バリアブルチャンネルの切り替え</translation>
    </message>
    <message>
        <source>Set the parameters of a variable channel</source>
        <translation>バリアブルチャンネルのパラメータの設定</translation>
    </message>
    <message>
        <source>Erase a variable channel</source>
        <translation>バリアブルチャンネルの消去</translation>
    </message>
    <message>
        <source>Switch the pixel gain correction</source>
        <translation>画素ゲイン補正の切り替え</translation>
    </message>
    <message>
        <source>Set the pixel gain correction data</source>
        <translation>画素ゲイン補正データの設定</translation>
    </message>
    <message>
        <source>1/%1 sec</source>
        <translation>1/%1 秒</translation>
    </message>
    <message>
        <source>No camera is listed</source>
        <translation>カメラが登録されていません</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>デバイス一覧</translation>
    </message>
    <message>
        <source>Not in the list</source>
        <translation>一覧にない値</translation>
    </message>
    <message>
        <source>Prioritize</source>
        <translation>優先</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>プリセット</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>マニュアル</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Optical Center</source>
        <translation>光学中心</translation>
    </message>
    <message>
        <source>Variable list</source>
        <translation>バリアブル</translation>
    </message>
    <message>
        <source>Apply the same configurable settings to all connected cameras.</source>
        <translation>接続中の全カメラに同じ設定を適用する</translation>
    </message>
    <message>
        <source>(empty)</source>
        <translation>(未登録)</translation>
    </message>
    <message>
        <source>No channel</source>
        <translation>チャンネルなし</translation>
    </message>
    <message>
        <source>Set up channels...</source>
        <translation>チャンネル設定...</translation>
    </message>
    <message>
        <source>The camera no longer offers this frame rate. Choose it again.</source>
        <translation>この撮影速度は現在のカメラでは使用できません。選択し直してください。</translation>
    </message>
    <message>
        <source>There is no manually configurable resolution for the currently selected shooting speed.</source>
        <translation>選択中の撮影速度でマニュアル設定できる解像度がありません。</translation>
    </message>
    <message>
        <source>Delete variable channel?</source>
        <translation>バリアブルチャンネルを削除しますか？</translation>
    </message>
    <message>
        <source>The bulk configuration to the following devices has been completed.</source>
        <translation>次のデバイスへの一括設定が完了しました。</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>幅</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>高さ</translation>
    </message>
    <message>
        <source>Position X</source>
        <translation>位置 X</translation>
    </message>
    <message>
        <source>Position Y</source>
        <translation>位置 Y</translation>
    </message>
    <message>
        <source>Memory partition...</source>
        <translation>メモリパーティション...</translation>
    </message>
    <message>
        <source>no link to the camera</source>
        <translation>カメラとの接続がありません</translation>
    </message>
    <message>
        <source>the camera does not answer</source>
        <translation>カメラが応答しません</translation>
    </message>
    <message>
        <source>the lens doesn't answer</source>
        <translation>レンズが応答しません</translation>
    </message>
    <message>
        <source>the lens doesn't drive this</source>
        <translation>このレンズでは駆動できません</translation>
    </message>
    <message>
        <source>this camera has no lens of its own</source>
        <translation>このカメラにはレンズがありません</translation>
    </message>
    <message>
        <source>settings can't change in the state "%1"</source>
        <translation>状態「%1」では設定を変更できません</translation>
    </message>
    <message>
        <source>not possible in the state "%1"</source>
        <translation>状態「%1」では実行できません</translation>
    </message>
    <message>
        <source>took %1 instead</source>
        <translation>代わりに %1 が設定されました</translation>
    </message>
    <message>
        <source>preset %1 holds nothing</source>
        <translation>プリセット %1 は空です</translation>
    </message>
    <message>
        <source>there is no preset %1</source>
        <translation>プリセット %1 はありません</translation>
    </message>
    <message>
        <source>channel %1 holds nothing</source>
        <translation>チャンネル %1 は空です</translation>
    </message>
    <message>
        <source>there is no channel %1</source>
        <translation>チャンネル %1 はありません</translation>
    </message>
    <message>
        <source>there is no partition %1</source>
        <translation>パーティション %1 はありません</translation>
    </message>
    <message>
        <source>this camera has no trigger mode %1</source>
        <translation>このカメラにはトリガーモード %1 がありません</translation>
    </message>
    <message>
        <source>not with a dual slope shutter</source>
        <translation>デュアルスロープシャッタ使用中はできません</translation>
    </message>
    <message>
        <source>not at this frame rate</source>
        <translation>このフレームレートではできません</translation>
    </message>
    <message>
        <source>low light is on</source>
        <translation>ローライトがオンです</translation>
    </message>
    <message>
        <source>nothing is recorded</source>
        <translation>録画がありません</translation>
    </message>
    <message>
        <source>a dummy has no settings</source>
        <translation>ダミーカメラには設定がありません</translation>
    </message>
    <message>
        <source>another camera has this name</source>
        <translation>同じ名前のカメラがあります</translation>
    </message>
    <message>
        <source>another camera has the address %1</source>
        <translation>アドレス %1 のカメラがあります</translation>
    </message>
    <message>
        <source>there is no access point in row %1</source>
        <translation>行 %1 にアクセスポイントがありません</translation>
    </message>
    <message>
        <source>the access point can't be found any more</source>
        <translation>アクセスポイントが見つかりません</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>ファイルが空です</translation>
    </message>
    <message>
        <source>this is no camera settings file</source>
        <translation>カメラ設定ファイルではありません</translation>
    </message>
    <message>
        <source>the file has version %1, and this program reads version %2</source>
        <translation>ファイルのバージョンは %1 です。このプログラムはバージョン %2 を読み込みます</translation>
    </message>
    <message>
        <source>the key "%1" is missing</source>
        <translation>キー「%1」がありません</translation>
    </message>
    <message>
        <source>an object is expected</source>
        <translation>オブジェクトが必要です</translation>
    </message>
    <message>
        <source>must not be empty</source>
        <translation>空にはできません</translation>
    </message>
    <message>
        <source>must be from %1 to %2</source>
        <translation>%1 から %2 の範囲でなければなりません</translation>
    </message>
    <message>
        <source>must be a whole number from %1 to %2</source>
        <translation>%1 から %2 の整数でなければなりません</translation>
    </message>
    <message>
        <source>whole numbers from %1 to %2 are expected</source>
        <translation>%1 から %2 の整数が必要です</translation>
    </message>
    <message>
        <source>at least one is expected</source>
        <translation>少なくとも一つ必要です</translation>
    </message>
    <message>
        <source>[width, height] in pixels is expected</source>
        <translation>[幅, 高さ] (ピクセル) が必要です</translation>
    </message>
    <message>
        <source>[x, y, width, height] is expected</source>
        <translation>[x, y, 幅, 高さ] が必要です</translation>
    </message>
    <message>
        <source>[iris, focus, zoom] is expected</source>
        <translation>[アイリス, フォーカス, ズーム] が必要です</translation>
    </message>
    <message>
        <source>%1 is expected</source>
        <translation>%1が必要です</translation>
    </message>
    <message>
        <source>"%1": %2</source>
        <translation>「%1」: %2</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>文字列</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>数値</translation>
    </message>
    <message>
        <source>a whole number</source>
        <translation>整数</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true または false</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>リスト</translation>
    </message>
    <message>
        <source>live</source>
        <translation>ライブ</translation>
    </message>
    <message>
        <source>ready</source>
        <translation>録画準備</translation>
    </message>
    <message>
        <source>recording</source>
        <translation>録画中</translation>
    </message>
    <message>
        <source>endless</source>
        <translation>エンドレス</translation>
    </message>
    <message>
        <source>memory</source>
        <translation>メモリ</translation>
    </message>
    <message>
        <source>saving</source>
        <translation>保存中</translation>
    </message>
    <message>
        <source>Waiting for %1</source>
        <translation>%1 の応答を待っています</translation>
    </message>
    <message>
        <source>Waiting for %1 cameras</source>
        <translation>カメラ %1 台の応答を待っています</translation>
    </message>
    <message>
        <source>Focusing</source>
        <translation>フォーカス調整中</translation>
    </message>
    <message>
        <source>Load a preset</source>
        <translation>プリセットの読み込み</translation>
    </message>
    <message>
        <source>Restore the settings</source>
        <translation>設定の復元</translation>
    </message>
    <message>
        <source>%1: the settings could not be restored (%2).</source>
        <translation>%1: 設定を復元できませんでした (%2)。</translation>
    </message>
    <message>
        <source>Partition</source>
        <translation>パーティション</translation>
    </message>
    <message>
        <source>Variable %1</source>
        <translation>バリアブル %1</translation>
    </message>
    <message>
        <source>This is no file.</source>
        <translation>ファイルではありません。</translation>
    </message>
    <message>
        <source>waitingReady</source>
        <translation>録画準備中</translation>
    </message>
    <message>
        <source>booting</source>
        <translation>起動中</translation>
    </message>
    <message>
        <source>another camera is being focused</source>
        <translation>別のカメラのフォーカスを調整中です</translation>
    </message>
    <message>
        <source>the recording ended the autofocus</source>
        <translation>録画のためオートフォーカスを終了しました</translation>
    </message>
    <message>
        <source>this camera has no %1</source>
        <translation>このカメラには %1 がありません</translation>
    </message>
    <message>
        <source>a list of numbers</source>
        <translation>数値のリスト</translation>
    </message>
    <message>
        <source>a list of objects</source>
        <translation>オブジェクトのリスト</translation>
    </message>
    <message>
        <source>a list of sizes</source>
        <translation>サイズのリスト</translation>
    </message>
    <message>
        <source>a list of texts</source>
        <translation>文字列のリスト</translation>
    </message>
    <message>
        <source>low light has no type %1</source>
        <translation>低照度撮影に種類 %1 はありません</translation>
    </message>
    <message>
        <source>unknown key; known are %1</source>
        <translation>不明なキーです。使えるキー: %1</translation>
    </message>
    <message>
        <source>a list of texts is expected</source>
        <translation>文字列のリストが必要です</translation>
    </message>
    <message>
        <source>[width, height] in pixels</source>
        <translation>[幅, 高さ] (ピクセル)</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>オブジェクト</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can't be set to &quot;%2&quot;</source>
        <translation>「%1」を「%2」に設定できません</translation>
    </message>
    <message>
        <source>four numbers joined by points are expected</source>
        <translation>ピリオドで区切った4つの数値が必要です</translation>
    </message>
    <message>
        <source>unknown model &quot;%1&quot;; known are %2</source>
        <translation>不明な機種「%1」です。使える機種: %2</translation>
    </message>
    <message>
        <source>at most 8 different names are expected</source>
        <translation>異なる名前を8つまで指定できます</translation>
    </message>
    <message>
        <source>the addresses from %1 on don't suffice</source>
        <translation>%1 以降のアドレスが足りません</translation>
    </message>
    <message>
        <source>the rig file can't be read: %1</source>
        <translation>リグファイルを読み込めません: %1</translation>
    </message>
    <message>
        <source>at least one camera is expected</source>
        <translation>カメラが1台以上必要です</translation>
    </message>
    <message>
        <source>another camera is named &quot;%1&quot;</source>
        <translation>「%1」という名前のカメラがほかにあります</translation>
    </message>
    <message>
        <source>another camera has %1</source>
        <translation>%1 のカメラがほかにあります</translation>
    </message>
    <message>
        <source>unknown lens; known are %1</source>
        <translation>不明なレンズです。使えるレンズ: %1</translation>
    </message>
    <message>
        <source>smallest, largest and perhaps a step are expected</source>
        <translation>最小値、最大値、必要なら刻みが必要です</translation>
    </message>
    <message>
        <source>unknown function &quot;%1&quot;</source>
        <translation>不明な機能「%1」です</translation>
    </message>
    <message>
        <source>&quot;dualSlopeMode&quot; needs &quot;dualSlope&quot;</source>
        <translation>「dualSlopeMode」には「dualSlope」が必要です</translation>
    </message>
    <message>
        <source>&quot;autoExposure&quot; needs its group of values</source>
        <translation>「autoExposure」にはその値のグループが必要です</translation>
    </message>
    <message>
        <source>&quot;imageTrigger&quot; needs the group of values &quot;autoExposure&quot;</source>
        <translation>「imageTrigger」には値のグループ「autoExposure」が必要です</translation>
    </message>
    <message>
        <source>&quot;x&quot; and &quot;y&quot; are the axes</source>
        <translation>軸は「x」と「y」です</translation>
    </message>
    <message>
        <source>must be a multiple of the size step</source>
        <translation>サイズの刻みの倍数でなければなりません</translation>
    </message>
    <message>
        <source>a preset is %1 rows high</source>
        <translation>高さ %1 行のプリセットがあります</translation>
    </message>
    <message>
        <source>must rise</source>
        <translation>昇順でなければなりません</translation>
    </message>
    <message>
        <source>must be longer than the other shutters</source>
        <translation>ほかのシャッターより長くなければなりません</translation>
    </message>
    <message>
        <source>must stand from the largest to the smallest</source>
        <translation>大きい順に並べてください</translation>
    </message>
    <message>
        <source>%1 x %2 is not on the sensor's grid</source>
        <translation>%1 x %2 はセンサーの刻みに合いません</translation>
    </message>
    <message>
        <source>%1 x %2 can't run the lowest rate</source>
        <translation>%1 x %2 は最低フレームレートで撮影できません</translation>
    </message>
    <message>
        <source>%1 x %2 can't run %3 fps</source>
        <translation>%1 x %2 は %3 fps で撮影できません</translation>
    </message>
    <message>
        <source>true or false is expected</source>
        <translation>true または false が必要です</translation>
    </message>
    <message>
        <source>a size such as 1280x1024 is expected</source>
        <translation>1280x1024 のようなサイズが必要です</translation>
    </message>
    <message>
        <source>a %1 from %2 to %3 is expected</source>
        <translation>%2 から %3 までの%1が必要です</translation>
    </message>
    <message>
        <source>whole number</source>
        <translation>整数</translation>
    </message>
    <message>
        <source>number</source>
        <translation>数値</translation>
    </message>
    <message>
        <source>unknown setting &quot;%1&quot;</source>
        <translation>不明な設定「%1」です</translation>
    </message>
    <message>
        <source>unknown model &quot;%1&quot;</source>
        <translation>不明な機種「%1」です</translation>
    </message>
    <message>
        <source>there is no such function</source>
        <translation>この機能はありません</translation>
    </message>
    <message>
        <source>There is no such slot.</source>
        <translation>このスロットはありません。</translation>
    </message>
    <message>
        <source>There are no presets.</source>
        <translation>プリセットがありません。</translation>
    </message>
    <message>
        <source>The camera did not carry out the operation.</source>
        <translation>カメラが操作を実行しませんでした。</translation>
    </message>
    <message>
        <source>A number of 0 digits is left out.</source>
        <translation>0 桁の番号は付きません。</translation>
    </message>
    <message>
        <source>Adding a number</source>
        <translation>番号の付加</translation>
    </message>
    <message>
        <source>As many as needed</source>
        <translation>必要な桁数</translation>
    </message>
    <message>
        <source>As many digits as the cameras need</source>
        <translation>カメラの台数に合わせる</translation>
    </message>
    <message>
        <source>Start over from the first value</source>
        <translation>最初の値に戻す</translation>
    </message>
    <message>
        <source>By the value</source>
        <translation>値に合わせる</translation>
    </message>
    <message>
        <source>Camera number</source>
        <translation>カメラ番号</translation>
    </message>
    <message>
        <source>Current Time Setting</source>
        <translation>現在時刻の設定</translation>
    </message>
    <message>
        <source>Decimals</source>
        <translation>小数点以下の桁数</translation>
    </message>
    <message>
        <source>Digits</source>
        <translation>桁数</translation>
    </message>
    <message>
        <source>Exposure time</source>
        <translation>露光時間</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>書式</translation>
    </message>
    <message>
        <source>Fraction of a second</source>
        <translation>秒の分数</translation>
    </message>
    <message>
        <source>Frames</source>
        <translation>フレーム数</translation>
    </message>
    <message>
        <source>Group the digits by thousands</source>
        <translation>3 桁ごとに区切る</translation>
    </message>
    <message>
        <source>Head number</source>
        <translation>ヘッド番号</translation>
    </message>
    <message>
        <source>Hours : minutes : seconds</source>
        <translation>時:分:秒</translation>
    </message>
    <message>
        <source>Microseconds</source>
        <translation>マイクロ秒</translation>
    </message>
    <message>
        <source>Milliseconds</source>
        <translation>ミリ秒</translation>
    </message>
    <message>
        <source>Minutes : seconds</source>
        <translation>分:秒</translation>
    </message>
    <message>
        <source>Nanoseconds</source>
        <translation>ナノ秒</translation>
    </message>
    <message>
        <source>Group the decimals in threes</source>
        <translation>小数を 3 桁ごとに区切る</translation>
    </message>
    <message>
        <source>Recording time disp</source>
        <translation>記録時間の表示</translation>
    </message>
    <message>
        <source>Replace that setting when saving</source>
        <translation>保存時にその設定を置き換える</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>リセット</translation>
    </message>
    <message>
        <source>Sample</source>
        <translation>表示例</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>秒</translation>
    </message>
    <message>
        <source>Session number</source>
        <translation>セッション番号</translation>
    </message>
    <message>
        <source>Show the time of day</source>
        <translation>実時刻を表示する</translation>
    </message>
    <message>
        <source>Shown as</source>
        <translation>表示形式</translation>
    </message>
    <message>
        <source>Shutter speed disp</source>
        <translation>シャッター速度の表示</translation>
    </message>
    <message>
        <source>Stands over the image and is kept with recordings.</source>
        <translation>画像の上に表示され、記録とともに保存されます。</translation>
    </message>
    <message>
        <source>Step of one frame</source>
        <translation>1 フレームの増分</translation>
    </message>
    <message>
        <source>This many digits</source>
        <translation>桁数を指定する</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>時間</translation>
    </message>
    <message>
        <source>Use the setting saved with a recording</source>
        <translation>記録に保存された設定を使う</translation>
    </message>
    <message>
        <source>Start value</source>
        <translation>開始値</translation>
    </message>
    <message>
        <source>Value in a unit</source>
        <translation>単位付きの値</translation>
    </message>
    <message>
        <source>Value in the unit</source>
        <translation>単位の値</translation>
    </message>
    <message>
        <source>What you type is the comment of all selected cameras.</source>
        <translation>入力した内容は、選択したすべてのカメラのコメントになります。</translation>
    </message>
    <message>
        <source>Start over after</source>
        <translation>戻す位置</translation>
    </message>
    <message>
        <source>Counted in</source>
        <translation>戻す位置の単位</translation>
    </message>
    <message>
        <source>digits</source>
        <translation>桁</translation>
    </message>
    <message>
        <source>frame disp</source>
        <translation>フレームの表示</translation>
    </message>
    <message>
        <source>recordrate disp</source>
        <translation>撮影速度の表示</translation>
    </message>
    <message>
        <source>Device name</source>
        <translation>デバイス名</translation>
    </message>
    <message>
        <source>Partition number</source>
        <translation>パーティション番号</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日付</translation>
    </message>
    <message>
        <source>Time(Alt)</source>
        <translation>時刻</translation>
    </message>
    <message>
        <source>Recording date and time</source>
        <translation>記録日時</translation>
    </message>
    <message>
        <source>Date/Time Rec</source>
        <translation>記録日時</translation>
    </message>
    <message>
        <source>Frame number</source>
        <translation>フレーム番号</translation>
    </message>
    <message>
        <source>Frame No</source>
        <translation>フレーム番号</translation>
    </message>
    <message>
        <source>Maximum of frames</source>
        <translation>最大フレーム数</translation>
    </message>
    <message>
        <source>Frame Count</source>
        <translation>フレーム数</translation>
    </message>
    <message>
        <source>Length of Time</source>
        <translation>記録時間</translation>
    </message>
    <message>
        <source>Rec Time</source>
        <translation>記録時間</translation>
    </message>
    <message>
        <source>Time code/IRIG code</source>
        <translation>タイムコード/IRIG コード</translation>
    </message>
    <message>
        <source>Current Time</source>
        <translation>現在時刻</translation>
    </message>
    <message>
        <source>Current time</source>
        <translation>現在時刻</translation>
    </message>
    <message>
        <source>IRIG code</source>
        <translation>IRIG コード</translation>
    </message>
    <message>
        <source>IRIG Time</source>
        <translation>IRIG 時刻</translation>
    </message>
    <message>
        <source>Trigger</source>
        <translation>トリガー</translation>
    </message>
    <message>
        <source>Event Marker</source>
        <translation>イベントマーカー</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>イベント</translation>
    </message>
    <message>
        <source>Number of Ignore Trigger</source>
        <translation>無視されたトリガー数</translation>
    </message>
    <message>
        <source>Ignore Trg</source>
        <translation>無視トリガー</translation>
    </message>
    <message>
        <source>LUT</source>
        <translation>LUT</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>彩度</translation>
    </message>
    <message>
        <source>A movie of the format %1 does not take the codec %2.</source>
        <translation>%1 形式の動画はコーデック %2 に対応していません。</translation>
    </message>
    <message>
        <source>The file is no movie that can be read.</source>
        <translation>読み込める動画ファイルではありません。</translation>
    </message>
    <message>
        <source>The picture is too large.</source>
        <translation>画像が大きすぎます。</translation>
    </message>
    <message>
        <source>Pictures of this kind can&apos;t be read.</source>
        <translation>この種類の画像は読み込めません。</translation>
    </message>
    <message>
        <source>There is no such frame.</source>
        <translation>そのフレームはありません。</translation>
    </message>
    <message>
        <source>The file is no picture that can be read.</source>
        <translation>読み込める画像ファイルではありません。</translation>
    </message>
    <message>
        <source>The picture is damaged, or a part of it is missing.</source>
        <translation>画像が壊れているか、一部が欠けています。</translation>
    </message>
    <message>
        <source>The picture has another size than the first one of its sequence.</source>
        <translation>画像のサイズが連番の最初の画像と異なります。</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 秒</translation>
    </message>
    <message>
        <source>%1 min %2 s</source>
        <translation>%1 分 %2 秒</translation>
    </message>
    <message>
        <source>%1 of %2 frames</source>
        <translation>%2 フレーム中 %1</translation>
    </message>
    <message>
        <source>%1 frames/s</source>
        <translation>%1 フレーム/秒</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>残り %1</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>待機中</translation>
    </message>
    <message>
        <source>Saved, %1 frames</source>
        <translation>保存しました (%1 フレーム)</translation>
    </message>
    <message>
        <source>Canceled after %1 of %2 frames</source>
        <translation>中止しました (%2 フレーム中 %1)</translation>
    </message>
    <message>
        <source>Jobs</source>
        <translation>ジョブ</translation>
    </message>
    <message>
        <source>Clear ended jobs</source>
        <translation>終了したジョブを消去</translation>
    </message>
    <message>
        <source>There are no jobs.</source>
        <translation>ジョブはありません。</translation>
    </message>
    <message>
        <source>Jobs...</source>
        <translation>ジョブ...</translation>
    </message>
    <message>
        <source>There is no codec "%1" here.</source>
        <translation>コーデック「%1」はありません。</translation>
    </message>
    <message>
        <source>The link to the camera was lost while its recording was read.</source>
        <translation>記録の読み込み中にカメラとの接続が切れました。</translation>
    </message>
    <message>
        <source>Frame %1 (T%2%3)</source>
        <translation>フレーム %1 (T%2%3)</translation>
    </message>
    <message>
        <source>You can not edit during the conversion process.</source>
        <translation>変換処理中は編集できません。</translation>
    </message>
    <message>
        <source>Multiple SD cards can not be opened at the same time. Are you sure you want to close all data of %1?</source>
        <translation>複数のSDカードを同時に開くことはできません。%1 のデータをすべて閉じますか?</translation>
    </message>
    <message>
        <source>Multiple CFast with USB connection can not be opened at the same time.Are you sure you want to close all data of %1?</source>
        <translation>USB接続の複数のCFastを同時に開くことはできません。%1 のデータをすべて閉じますか?</translation>
    </message>
    <message>
        <source>Invalid Password.</source>
        <translation>パスワードが正しくありません。</translation>
    </message>
    <message>
        <source>Formatting is completed.</source>
        <translation>フォーマットが完了しました。</translation>
    </message>
    <message>
        <source>Password setting completed..</source>
        <translation>パスワードを設定しました。</translation>
    </message>
    <message>
        <source>Password setting failed.</source>
        <translation>パスワードを設定できませんでした。</translation>
    </message>
    <message>
        <source>All data connected to Slot %2 of %1 will be deleted.&lt;br&gt;Is this OK?</source>
        <translation>%1 のスロット %2 のデータをすべて削除します。&lt;br&gt;よろしいですか?</translation>
    </message>
    <message>
        <source>Saved after the automatic conversion</source>
        <translation>自動変換後の保存</translation>
    </message>
    <message>
        <source>Camera storage</source>
        <translation>カメラのストレージ</translation>
    </message>
    <message>
        <source>Snapshot</source>
        <translation>スナップショット</translation>
    </message>
    <message>
        <source>Convert</source>
        <translation>変換</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>レポート</translation>
    </message>
    <message>
        <source>Save layout</source>
        <translation>レイアウトの保存</translation>
    </message>
    <message>
        <source>Open from folder or card...</source>
        <translation>フォルダまたはカードから開く...</translation>
    </message>
    <message>
        <source>Save as...</source>
        <translation>名前を付けて保存...</translation>
    </message>
    <message>
        <source>Snapshot...</source>
        <translation>スナップショット...</translation>
    </message>
    <message>
        <source>Convert...</source>
        <translation>変換...</translation>
    </message>
    <message>
        <source>Report...</source>
        <translation>レポート...</translation>
    </message>
    <message>
        <source>Save layout...</source>
        <translation>レイアウトを保存...</translation>
    </message>
    <message>
        <source>Camera storage...</source>
        <translation>カメラのストレージ...</translation>
    </message>
    <message>
        <source>There is nothing to save.</source>
        <translation>保存するものがありません。</translation>
    </message>
    <message>
        <source>Open recording</source>
        <translation>録画を開く</translation>
    </message>
    <message>
        <source>there is no slot %1</source>
        <translation>スロット %1 がありません</translation>
    </message>
    <message>
        <source>A file can't have this name.</source>
        <translation>この名前はファイルに使えません。</translation>
    </message>
    <message>
        <source>Looking for saved recordings...</source>
        <translation>保存済みのデータを探しています...</translation>
    </message>
    <message>
        <source>there is no card in slot %1</source>
        <translation>スロット %1 にカードがありません</translation>
    </message>
    <message>
        <source>the card in slot %1 is not formatted</source>
        <translation>スロット %1 のカードはフォーマットされていません</translation>
    </message>
    <message>
        <source>the card in slot %1 is write protected</source>
        <translation>スロット %1 のカードは書き込み禁止です</translation>
    </message>
    <message>
        <source>there is no record %1</source>
        <translation>記録 %1 がありません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can't be copied to &quot;%2&quot;</source>
        <translation>「%1」を「%2」にコピーできません</translation>
    </message>
    <message>
        <source>&quot;sd&quot;, &quot;dockstore&quot; or &quot;cfast&quot; is expected</source>
        <translation>&quot;sd&quot;、&quot;dockstore&quot;、&quot;cfast&quot; のいずれかが必要です</translation>
    </message>
    <message>
        <source>There is no such drive.</source>
        <translation>そのドライブはありません。</translation>
    </message>
    <message>
        <source>Its data has no name of its own.</source>
        <translation>このデータには固有の名前がありません。</translation>
    </message>
    <message>
        <source>There are no images here, for this screen has no OpenGL, in which they are drawn. A software one does: set LIBGL_ALWAYS_SOFTWARE=1, or start the program on another screen.</source>
        <translation>この画面には画像の描画に必要な OpenGL がないため、画像を表示できません。LIBGL_ALWAYS_SOFTWARE=1 を設定してソフトウェアで描画するか、別の画面でプログラムを起動してください。</translation>
    </message>
    <message>
        <source>This screen has no OpenGL.</source>
        <translation>この画面には OpenGL がありません。</translation>
    </message>
    <message>
        <source>There is no recording.</source>
        <translation>録画がありません。</translation>
    </message>
    <message>
        <source>One folder for all cameras</source>
        <translation>全カメラで1つのフォルダ</translation>
    </message>
    <message>
        <source>Name of a folder</source>
        <translation>フォルダの名前</translation>
    </message>
    <message>
        <source>Add a folder...</source>
        <translation>フォルダを追加...</translation>
    </message>
    <message>
        <source>Frames as the camera has them.</source>
        <translation>カメラのままのフレーム。</translation>
    </message>
    <message>
        <source>Codec</source>
        <translation>コーデック</translation>
    </message>
    <message>
        <source>Save every</source>
        <translation>保存間隔</translation>
    </message>
    <message>
        <source>milliseconds</source>
        <translation>ミリ秒</translation>
    </message>
    <message>
        <source>With information</source>
        <translation>情報を付ける</translation>
    </message>
    <message>
        <source>Information...</source>
        <translation>情報...</translation>
    </message>
    <message>
        <source>Time code...</source>
        <translation>タイムコード...</translation>
    </message>
    <message>
        <source>Names...</source>
        <translation>名前...</translation>
    </message>
    <message>
        <source>Files...</source>
        <translation>ファイル...</translation>
    </message>
    <message>
        <source>Folder...</source>
        <translation>フォルダ...</translation>
    </message>
    <message>
        <source>There is no card or drive.</source>
        <translation>カードやドライブがありません。</translation>
    </message>
    <message>
        <source>Format...</source>
        <translation>フォーマット...</translation>
    </message>
    <message>
        <source>Saved?...</source>
        <translation>保存済みの確認...</translation>
    </message>
    <message>
        <source>Delete...</source>
        <translation>削除...</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>This camera has no storage of its own.</source>
        <translation>このカメラにはストレージがありません。</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>番号</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>名前を変更</translation>
    </message>
    <message>
        <source>Digits...</source>
        <translation>桁数...</translation>
    </message>
    <message>
        <source>Group folder</source>
        <translation>グループフォルダ</translation>
    </message>
    <message>
        <source>Sub folder</source>
        <translation>サブフォルダ</translation>
    </message>
    <message>
        <source>As the file</source>
        <translation>ファイルと同じ</translation>
    </message>
    <message>
        <source>Add a number</source>
        <translation>番号を付ける</translation>
    </message>
    <message>
        <source>As it was called</source>
        <translation>元の名前</translation>
    </message>
    <message>
        <source>Of custom items</source>
        <translation>カスタム項目から</translation>
    </message>
    <message>
        <source>Custom items</source>
        <translation>カスタム項目</translation>
    </message>
    <message>
        <source>Choose a folder.</source>
        <translation>フォルダを選択してください。</translation>
    </message>
    <message>
        <source>SD card %1</source>
        <translation>SDカード %1</translation>
    </message>
    <message>
        <source>SD card</source>
        <translation>SDカード</translation>
    </message>
    <message>
        <source>Empty slot</source>
        <translation>空のスロット</translation>
    </message>
    <message>
        <source>Formatted</source>
        <translation>フォーマット済み</translation>
    </message>
    <message>
        <source>Not formatted</source>
        <translation>未フォーマット</translation>
    </message>
    <message>
        <source>Write protected</source>
        <translation>書き込み禁止</translation>
    </message>
    <message>
        <source>%1 free</source>
        <translation>空き %1</translation>
    </message>
    <message>
        <source>All data on %1 will be deleted.</source>
        <translation>%1 のデータをすべて削除します。</translation>
    </message>
    <message>
        <source>%1 will be deleted.</source>
        <translation>%1 を削除します。</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>標準</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>フィット</translation>
    </message>
    <message>
        <source>Cards</source>
        <translation>カード</translation>
    </message>
    <message>
        <source>Card</source>
        <translation>カード</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>挿入</translation>
    </message>
    <message>
        <source>Pull</source>
        <translation>抜く</translation>
    </message>
    <message>
        <source>Record on it</source>
        <translation>記録を追加</translation>
    </message>
    <message>
        <source>Slot</source>
        <translation>スロット</translation>
    </message>
    <message>
        <source>Recording %1</source>
        <translation>録画 %1</translation>
    </message>
    <message>
        <source>%1 used</source>
        <translation>使用 %1</translation>
    </message>
    <message>
        <source>%1 written</source>
        <translation>書き込み %1</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>前へ</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>次へ</translation>
    </message>
    <message>
        <source>Edit information...</source>
        <translation>情報の編集...</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>The folder can&apos;t be made.</source>
        <translation>フォルダを作成できません。</translation>
    </message>
    <message>
        <source>The logo can&apos;t be shown: %1</source>
        <translation>ロゴを表示できません: %1</translation>
    </message>
    <message>
        <source>Keeps the settings without saving anything</source>
        <translation>何も保存せずに設定を保持します</translation>
    </message>
    <message>
        <source>Beside the original file</source>
        <translation>元のファイルと同じ場所</translation>
    </message>
    <message>
        <source>%1 cameras: %2</source>
        <translation>%1 台のカメラ: %2</translation>
    </message>
    <message>
        <source>Yes: %1</source>
        <translation>はい: %1</translation>
    </message>
    <message>
        <source>No: %1</source>
        <translation>いいえ: %1</translation>
    </message>
    <message>
        <source>%1: the settings are stored as preset %2.</source>
        <translation>%1: 設定をプリセット %2 に保存しました。</translation>
    </message>
    <message>
        <source>The settings are saved: %1</source>
        <translation>設定を保存しました: %1</translation>
    </message>
    <message>
        <source>Filter cameras</source>
        <translation>カメラを絞り込む</translation>
    </message>
    <message>
        <source>Turn off or restart</source>
        <translation>電源オフまたは再起動</translation>
    </message>
    <message>
        <source>Cameras found: %1; already in the list: %2</source>
        <translation>見つかったカメラ: %1、すでに一覧にあるカメラ: %2</translation>
    </message>
    <message>
        <source>An address has four numbers from 0 to 255 with points between.</source>
        <translation>アドレスは 0 から 255 までの 4 つの数を点で区切ったものです。</translation>
    </message>
    <message>
        <source>Each number is from 0 to 255.</source>
        <translation>数はそれぞれ 0 から 255 までです。</translation>
    </message>
    <message>
        <source>A number from %1 to %2 belongs here.</source>
        <translation>ここには %1 から %2 までの数を入力します。</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>参照...</translation>
    </message>
    <message>
        <source>File of camera names</source>
        <translation>カメラ名ファイル</translation>
    </message>
    <message>
        <source>The support file is saved: %1</source>
        <translation>サポートファイルを保存しました: %1</translation>
    </message>
    <message>
        <source>Keyboard to the panel</source>
        <translation>キーボードをパネルへ</translation>
    </message>
    <message>
        <source>Keyboard to the image</source>
        <translation>キーボードを画像へ</translation>
    </message>
    <message>
        <source>Keys...</source>
        <translation>キー一覧...</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>キー一覧</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>キー</translation>
    </message>
    <message>
        <source>What it does</source>
        <translation>動作</translation>
    </message>
    <message>
        <source>Choose a range of cameras</source>
        <translation>カメラの範囲を選択</translation>
    </message>
    <message>
        <source>Add a camera to the choice, or take it out</source>
        <translation>カメラを選択に追加、または除外</translation>
    </message>
    <message>
        <source>Choose all cameras</source>
        <translation>すべてのカメラを選択</translation>
    </message>
    <message>
        <source>Go to the camera whose name begins so</source>
        <translation>その名前で始まるカメラへ移動</translation>
    </message>
    <message>
        <source>Edit the camera</source>
        <translation>カメラを編集</translation>
    </message>
    <message>
        <source>Take the camera out of the list</source>
        <translation>カメラを一覧から除外</translation>
    </message>
    <message>
        <source>Go to the buttons of a camera&apos;s row</source>
        <translation>カメラの行のボタンへ移動</translation>
    </message>
    <message>
        <source>Menu of the camera</source>
        <translation>カメラのメニュー</translation>
    </message>
    <message>
        <source>Give a field back what stood in it</source>
        <translation>入力欄を元の値に戻す</translation>
    </message>
    <message>
        <source>The selected cameras differ:</source>
        <translation>選択したカメラの値が異なります:</translation>
    </message>
    <message>
        <source>The image trigger is on: a change of the light can start the recording.</source>
        <translation>画像トリガーがオンです。明るさの変化で撮影が始まることがあります。</translation>
    </message>
    <message>
        <source>A camera is ready, records or saves: nothing can be set here.</source>
        <translation>撮影待機中、撮影中または保存中のカメラがあるため、ここでは設定できません。</translation>
    </message>
    <message>
        <source>%1 can&apos;t be reached at its new address. Change the address all the same?</source>
        <translation>%1 は新しいアドレスでは通信できません。それでもアドレスを変更しますか？</translation>
    </message>
    <message>
        <source>The camera stays in the list without a link, and can&apos;t be edited there. The way back: "Camera search" finds it whatever its address is, and "Change address" gives it another.</source>
        <translation>カメラは未接続のまま一覧に残り、一覧からは編集できません。元に戻すには、「カメラ検索」で探して（アドレスにかかわらず見つかります）、「アドレスを変更」で変更してください。</translation>
    </message>
    <message>
        <source>There is no link to the camera. "Camera search" finds it whatever its address is, and "Change address" gives it another.</source>
        <translation>カメラと接続されていません。「カメラ検索」で探して（アドレスにかかわらず見つかります）、「アドレスを変更」で変更してください。</translation>
    </message>
    <message>
        <source>Also changed: %1</source>
        <translation>あわせて変更: %1</translation>
    </message>
    <message>
        <source>%1, image trigger on</source>
        <translation>%1、画像トリガーオン</translation>
    </message>
    <message>
        <source>These selected cameras are not connected. Record without them?</source>
        <translation>選択した次のカメラは接続されていません。これらを除いて撮影しますか？</translation>
    </message>
    <message>
        <source>Not connected: %1</source>
        <translation>未接続: %1</translation>
    </message>
    <message>
        <source>%1 of %2 before the trigger</source>
        <translation>トリガー前 %1 / %2</translation>
    </message>
    <message>
        <source>%1 s left</source>
        <translation>残り %1 秒</translation>
    </message>
    <message>
        <source>its values are shown</source>
        <translation>その値を表示中</translation>
    </message>
    <message>
        <source>From</source>
        <translation>場所</translation>
    </message>
    <message>
        <source>%1 on %2 will be deleted.</source>
        <translation>%2 の %1 が削除されます。</translation>
    </message>
    <message>
        <source>Recordings on it: %1</source>
        <translation>記録の数: %1</translation>
    </message>
    <message>
        <source>There is no link to the camera</source>
        <translation>カメラと接続されていません</translation>
    </message>
    <message>
        <source>Locked by a password</source>
        <translation>パスワードで保護されています</translation>
    </message>
    <message>
        <source>the drive asks for its password</source>
        <translation>ドライブにパスワードが設定されています</translation>
    </message>
    <message>
        <source>DockStore %1</source>
        <translation>DockStore %1</translation>
    </message>
    <message>
        <source>CFast %1</source>
        <translation>CFast %1</translation>
    </message>
    <message>
        <source>Format a card or drive</source>
        <translation>カードまたはドライブのフォーマット</translation>
    </message>
    <message>
        <source>Read a card or drive</source>
        <translation>カードまたはドライブの読み込み</translation>
    </message>
    <message>
        <source>Name a recording</source>
        <translation>記録の名前の変更</translation>
    </message>
    <message>
        <source>Live picture</source>
        <translation>ライブ画像</translation>
    </message>
    <message>
        <source>There may be too little room in the folder.</source>
        <translation>フォルダの空き容量が不足する可能性があります。</translation>
    </message>
    <message>
        <source>The folder is write protected.</source>
        <translation>フォルダは書き込み禁止です。</translation>
    </message>
    <message>
        <source>Recorded</source>
        <translation>記録日時</translation>
    </message>
    <message>
        <source>(%1 files, numbered on from here)</source>
        <translation>(%1 ファイル、ここから連番)</translation>
    </message>
    <message>
        <source>Layout by the frames of %1</source>
        <translation>%1 のフレームによるレイアウト</translation>
    </message>
    <message>
        <source>Will be stopped: %1</source>
        <translation>中止されます: %1</translation>
    </message>
    <message>
        <source>These jobs will be stopped before their files are complete. Do you want to go on?</source>
        <translation>これらのジョブはファイルが完成する前に中止されます。続行しますか？</translation>
    </message>
    <message>
        <source>%1 jobs: %2 of %3 frames</source>
        <translation>%1 件のジョブ: %2 / %3 フレーム</translation>
    </message>
    <message>
        <source>Saved, 1 frame</source>
        <translation>保存済み、1 フレーム</translation>
    </message>
    <message>
        <source>%1 of %2 pictures were written and stay.</source>
        <translation>%2 枚中 %1 枚の画像が書き込まれ、残っています。</translation>
    </message>
    <message>
        <source>These files were cut off. What is left of them can be seen:</source>
        <translation>これらのファイルは途中で切れています。残っている部分のみ表示できます:</translation>
    </message>
    <message>
        <source>Cut off</source>
        <translation>途中まで</translation>
    </message>
    <message>
        <source>The file was cut off: its last frames are missing.</source>
        <translation>ファイルが途中で切れているため、最後のフレームがありません。</translation>
    </message>
    <message>
        <source>Cameras are reached in live and memory mode.</source>
        <translation>カメラはライブモードとメモリモードで操作できます。</translation>
    </message>
    <message>
        <source>M marks the frame that shows</source>
        <translation>M キーで表示中のフレームに印を付けます</translation>
    </message>
    <message>
        <source>Marked: %1. N goes to the next one, Shift+N to the one before.</source>
        <translation>印: %1。N キーで次の印、Shift+N キーで前の印に移動します。</translation>
    </message>
    <message>
        <source>Another program writes it.</source>
        <translation>ほかのプログラムが書き込み中です。</translation>
    </message>
    <message>
        <source>The folder&apos;s name must not hold "|" or "?".</source>
        <translation>フォルダ名に「|」「?」は使えません。</translation>
    </message>
    <message>
        <source>Add the recording&apos;s number</source>
        <translation>記録の番号を付ける</translation>
    </message>
    <message>
        <source>Add to the name</source>
        <translation>名前に追加</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>日付と時刻</translation>
    </message>
    <message>
        <source>Mark the frame that shows, or take its mark away</source>
        <translation>表示中のフレームに印を付ける、または外す</translation>
    </message>
    <message>
        <source>Go to the next mark, or to the one before</source>
        <translation>次の印、または前の印へ移動</translation>
    </message>
    <message>
        <source>Go to another frame of the recording</source>
        <translation>記録の別のフレームへ移動</translation>
    </message>
    <message>
        <source>Move an item of the information</source>
        <translation>情報の項目を移動</translation>
    </message>
    <message>
        <source>Take over a comment</source>
        <translation>コメントを確定</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>リニア</translation>
    </message>
    <message>
        <source>Gamma 1.5</source>
        <translation>ガンマ 1.5</translation>
    </message>
    <message>
        <source>Gamma 2.2</source>
        <translation>ガンマ 2.2</translation>
    </message>
    <message>
        <source>Inverse</source>
        <translation>反転</translation>
    </message>
    <message>
        <source>Lookup table</source>
        <translation>ルックアップテーブル</translation>
    </message>
    <message>
        <source>0 %</source>
        <translation>0 %</translation>
    </message>
    <message>
        <source>50 %</source>
        <translation>50 %</translation>
    </message>
    <message>
        <source>100 %</source>
        <translation>100 %</translation>
    </message>
    <message>
        <source>150 %</source>
        <translation>150 %</translation>
    </message>
    <message>
        <source>200 %</source>
        <translation>200 %</translation>
    </message>
    <message>
        <source>Zoom rate</source>
        <translation>表示倍率</translation>
    </message>
    <message>
        <source>Cross cursor</source>
        <translation>十字カーソル</translation>
    </message>
    <message>
        <source>Logo</source>
        <translation>ロゴ</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>カスタム</translation>
    </message>
    <message>
        <source>Trigger and Exposure Gap time</source>
        <translation>トリガーと露光の時間差</translation>
    </message>
    <message>
        <source>TRG-EXP</source>
        <translation>TRG-EXP</translation>
    </message>
    <message>
        <source>Simple measurement result</source>
        <translation>簡易計測結果</translation>
    </message>
    <message>
        <source>Rec end time</source>
        <translation>記録終了時刻</translation>
    </message>
    <message>
        <source>Head %1</source>
        <translation>ヘッド %1</translation>
    </message>
    <message>
        <source>Partition %1</source>
        <translation>パーティション %1</translation>
    </message>
    <message>
        <source>The disk is full.</source>
        <translation>ディスクがいっぱいです。</translation>
    </message>
    <message>
        <source>The file would grow larger than is allowed there.</source>
        <translation>ファイルがその場所で許される大きさを超えます。</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>名前が長すぎます。</translation>
    </message>
    <message>
        <source>Nothing can be written there.</source>
        <translation>その場所には書き込めません。</translation>
    </message>
    <message>
        <source>There is a file of that name already.</source>
        <translation>その名前のファイルが既にあります。</translation>
    </message>
    <message>
        <source>A frame is empty, or too large for a file.</source>
        <translation>フレームが空か、ファイルには大きすぎます。</translation>
    </message>
    <message>
        <source>Frame %1 is of another size than the others.</source>
        <translation>フレーム %1 の大きさが他のフレームと異なります。</translation>
    </message>
    <message>
        <source>Frame %1 is damaged.</source>
        <translation>フレーム %1 は壊れています。</translation>
    </message>
    <message>
        <source>Folder for kept recordings</source>
        <translation>取り込んだ撮影データのフォルダ</translation>
    </message>
    <message>
        <source>Kept recordings take up at most</source>
        <translation>取り込んだ撮影データの上限</translation>
    </message>
    <message>
        <source>All</source>
        <translation>すべて</translation>
    </message>
    <message>
        <source>No limit</source>
        <translation>制限なし</translation>
    </message>
    <message>
        <source>GB</source>
        <translation>GB </translation>
    </message>
    <message>
        <source>Recordings (%1)</source>
        <translation>撮影データ (%1)</translation>
    </message>
    <message>
        <source>The folder for kept recordings can't be made.</source>
        <translation>取り込んだ撮影データのフォルダを作成できません。</translation>
    </message>
    <message>
        <source>Saved as %1</source>
        <translation>%1 として保存しました</translation>
    </message>
    <message>
        <source>The recording has no such frames.</source>
        <translation>撮影データにそのフレームはありません。</translation>
    </message>
    <message>
        <source>There is no format "%1" here.</source>
        <translation>形式「%1」はありません。</translation>
    </message>
    <message>
        <source>%1: %2 frames</source>
        <translation>%1: %2 フレーム</translation>
    </message>
    <message>
        <source>%1: %2 of %3 frames</source>
        <translation>%1: %2 / %3 フレーム</translation>
    </message>
    <message>
        <source>%1 recordings: %2 of %3 frames</source>
        <translation>%1 件: %2 / %3 フレーム</translation>
    </message>
    <message>
        <source>These recordings are in no file and will be lost. Do you want to go on?</source>
        <translation>次の撮影データはファイルになく、失われます。続けますか?</translation>
    </message>
    <message>
        <source>This recording has not been saved and will be lost. Do you want to go on?</source>
        <translation>この撮影データは保存されておらず、失われます。続けますか?</translation>
    </message>
    <message>
        <source>These recordings were kept earlier and have not been saved:</source>
        <translation>以前に取り込まれ、まだ保存されていない撮影データがあります:</translation>
    </message>
    <message>
        <source>Do you want to open them?</source>
        <translation>開きますか?</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>後で</translation>
    </message>
    <message>
        <source>Keeping %1</source>
        <translation>%1 を取り込み中</translation>
    </message>
    <message>
        <source>%1: %2 of %3 frames kept</source>
        <translation>%1: %2 / %3 フレームを取り込みました</translation>
    </message>
    <message>
        <source>The link to %1 was lost while its recording was read.</source>
        <translation>撮影データの読み出し中に %1 との接続が切れました。</translation>
    </message>
    <message>
        <source>The folder for kept recordings has reached its limit. Save recordings and close them, or raise the limit in the preferences.</source>
        <translation>取り込んだ撮影データのフォルダが上限に達しました。撮影データを保存して閉じるか、環境設定で上限を上げてください。</translation>
    </message>
    <message>
        <source>The camera's memory can't be read.</source>
        <translation>カメラのメモリを読み出せません。</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>保存済み</translation>
    </message>
    <message>
        <source>Not saved</source>
        <translation>未保存</translation>
    </message>
    <message>
        <source>Recordings</source>
        <translation>撮影データ一覧</translation>
    </message>
    <message>
        <source>Save all...</source>
        <translation>すべて保存...</translation>
    </message>
    <message>
        <source>Go to the trigger</source>
        <translation>トリガー位置へ移動</translation>
    </message>
    <message>
        <source>From here</source>
        <translation>ここから</translation>
    </message>
    <message>
        <source>The replay begins at this frame</source>
        <translation>このフレームから再生</translation>
    </message>
    <message>
        <source>To here</source>
        <translation>ここまで</translation>
    </message>
    <message>
        <source>The replay ends at this frame</source>
        <translation>このフレームまで再生</translation>
    </message>
    <message>
        <source>Replay all frames</source>
        <translation>全フレームを再生</translation>
    </message>
    <message>
        <source>Again and again</source>
        <translation>繰り返し</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>はい(&amp;Y)</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>いいえ(&amp;N)</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
</context>
<context>
    <name>QMessageBox</name>
    <message>
        <source>Show Details...</source>
        <translation>詳細を表示...</translation>
    </message>
    <message>
        <source>Hide Details...</source>
        <translation>詳細を隠す...</translation>
    </message>
</context>
</TS>
